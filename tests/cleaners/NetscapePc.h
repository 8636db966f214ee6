// A test PC for Netscape, with two profiles on request.
#pragma once

#include "cleaners/BrowserFiles.h"
#include "cleaners/frmNSCookieKeep.h"
#include "support/TracedWash.h"

namespace zub {

inline const std::string One = "C:\\W\\Mozilla\\Profiles\\default\\abcd.slt";
inline const std::string Two = "C:\\W\\Mozilla\\Profiles\\work\\wxyz.slt";
inline const std::string ProfileRegistry = "C:\\W\\Mozilla\\Registry.dat";

// The cookies of both profiles.
inline const std::string Basket = cookieLine(".shop.example", "basket", "17");
inline const std::string Login = ".shop.example\tTRUE\t/\tFALSE\t1023456789\tlogin\tme\r\n";
inline const std::string News = cookieLine("news.example", "a,b", "1");

struct NetscapePc : TracedWash {
  frmNSCookieKeep keep{engine};

  NetscapePc() { pc.shellFolder("AppData", "C:\\W"); }
  void profiles() {
    pc.file(ProfileRegistry, profileRegistry({"Profiles", "default", One, "work", Two, "tail"}));
    for (const std::string& profile : {One, Two}) {
      pc.file(profile + "\\Cookies.txt", "# HTTP Cookie File\n\n" + Basket + Login + "no tab\n" + News);
    }
  }
  void keepFile(const std::string& profile, std::string_view bytes) {
    pc.file(profile + "\\ZUBKeepNS6.inf", bytes);
  }
  std::string kept(const std::string& profile) const { return pc.bytes(profile + "\\ZUBKeepNS6.inf"); }
  std::string cookies(const std::string& profile) const { return pc.bytes(profile + "\\Cookies.txt"); }
};

}  // namespace zub
