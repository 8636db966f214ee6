// The task "Netscape" of a wash: the files of every profile. A PC without profiles gives the heading alone.
#pragma once

namespace zub {

class Engine;
class frmNSCookieKeep;

void CleanNetscape(Engine& engine, frmNSCookieKeep& cookieKeep);

}  // namespace zub
