// The task "Internet Explorer" of a wash: cookies that are not kept, cache and history, the index files,
// typed addresses, downloaded programs. Each is a check option of its own.
#pragma once

namespace zub {

class Engine;
class frmIECookieKeep;

void CleanIE(Engine& engine, frmIECookieKeep& cookieKeep);

}  // namespace zub
