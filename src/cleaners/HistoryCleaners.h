// The lists of recent things that Windows, its media player and the Office programs keep.
#pragma once

namespace zub {

class Engine;

void CleanDocumentHistory(Engine& engine);
void CleanFindHistory(Engine& engine);
void CleanRunHistory(Engine& engine);
void CleanMediaPlayer(Engine& engine);
void CleanOffice(Engine& engine);

}  // namespace zub
