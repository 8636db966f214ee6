"""The browsers' files: cookies, caches, histories, profiles. For the row form see disk.py."""

from formats import filler, gif, picture, profile_registry, text, unix_text, url_index

COOKIES = r"C:\WINDOWS\Cookies"
CACHE = r"C:\WINDOWS\Temporary Internet Files"
HISTORY = r"C:\WINDOWS\History"
MOZILLA = r"C:\WINDOWS\Application Data\Mozilla"
DEFAULT = MOZILLA + r"\Profiles\default\k3v9xq2t.slt"
KIDS = MOZILLA + r"\Profiles\kids\77dhm0ab.slt"

DESKTOP_INI = text("[.ShellClassInfo]", "UICLSID={7BD29E00-76C1-11CF-9DD0-00A0C9034933}")


def ie_cookie(name, value, place):
    return unix_text(name, value, place, "0", "3567004032", "30124358", "2743889344", "29403712", "*")


def ie_record(place, file_name, tag="URL "):
    return tag, f"Cookie:family@{place}", file_name


IE_FILES = [
    (COOKIES, [
        # Ticked in the keep file by its site.
        ("stays", "family@news.example[1].txt", ie_cookie("region", "north", "news.example.com/")),
        # Its letter outside ASCII keeps it from its record, so its keep line is the file name.
        ("stays", "zoé@boutique.example[1].txt", ie_cookie("panier", "2", "boutique.example.org/")),
        ("gone", "family@shop.example[1].txt", ie_cookie("basket", "A77-1904", "shop.example.org/")),
        ("gone", "family@shop.example[2].txt", ie_cookie("visits", "12", "shop.example.org/toys/")),
        ("gone", "family@ads.example[1].txt", ie_cookie("id", "8f13c2", "ads.example.net/")),
        ("gone", "family@old-mail.example[1].txt", ie_cookie("user", "family", "old-mail.example.net/")),
        # No record names the next two where the list looks for one.
        ("gone", "family@weather.example[1].txt", ie_cookie("town", "Harbour", "weather.example.com/")),
        ("gone", "family@games.example[1].txt", ie_cookie("score", "4120", "games.example.com/")),
        # The cookie list offers no hidden files.
        ("stays hidden", "family@intranet.example[1].txt", ie_cookie("desk", "4", "intranet.example/")),
        ("stays", "ZUBKeep.inf", text("http://news.example.com/ ", "zoé@boutique.example[1].txt",
                                      "http://closed-shop.example.org/ ")),
        ("stays", "cookie recipes.rtf", text(r"{\rtf1 Oat cookies: 200 g oats, 100 g butter, honey.}")),
        ("stays hidden system", "index.dat", url_index([
            ie_record("news.example.com/", "family@news.example[1].txt"),
            ie_record("shop.example.org/", "family@shop.example[1].txt"),
            ie_record("shop.example.org/toys/", "family@shop.example[2].txt"),
            ie_record("ads.example.net/", "family@ads.example[1].txt"),
            ie_record("ads.example.net/banner/", "family@ads.example[1].txt"),  # a file has one row
            ie_record("old-mail.example.net/", "family@old-mail.example[1].txt", "LEAK"),
            ie_record("gone.example.com/", "family@gone.example[1].txt"),  # no such file
            ("URL ", "Cookie:zoé@boutique.example.org/", "zoé@boutique.example[1].txt"),
        ], late=[("Cookie:family@games.example.com/", "family@games.example[1].txt")])),
    ]),
    (CACHE, [("gone hidden system", "desktop.ini", DESKTOP_INI)]),
    (CACHE + r"\Content.IE5", [
        ("gone hidden system", "desktop.ini", DESKTOP_INI),
        ("gone hidden system", "index.dat", url_index([
            ("URL ", "http://news.example.com/index.html", "index[1].htm"),
            ("URL ", "http://news.example.com/logo.gif", "logo[1].gif"),
            ("URL ", "http://shop.example.org/toys.html", "toys[1].htm"),
        ])),
    ]),
    (CACHE + r"\Content.IE5\GHQFS5MR", [
        ("gone hidden system", "desktop.ini", DESKTOP_INI),
        ("gone", "index[1].htm", text("<html><title>News</title>", "<body>Fair weather for the weekend.</body></html>")),
        ("gone", "logo[1].gif", gif((200, 30, 30))),
        ("gone readonly", "style[1].css", text("body { font-family: Verdana }")),
    ]),
    (CACHE + r"\Content.IE5\OPQ7KDUB", [
        ("gone hidden system", "desktop.ini", DESKTOP_INI),
        ("gone", "toys[1].htm", text("<html><title>Toys</title><body>Trains, bricks, kites.</body></html>")),
        ("gone", "train[1].bmp", picture(48, 32, "train")),
        ("gone", "kite[1].bmp", picture(40, 40, "kite")),
    ]),
    (r"C:\WINDOWS\Offline Web Pages", [("stays", "Timetable.htm", text("<html>Bus 14: 7:05 7:35 8:05</html>"))]),
    (HISTORY, [("gone hidden system", "desktop.ini", DESKTOP_INI)]),
    (HISTORY + r"\History.IE5", [
        ("gone hidden system", "desktop.ini", DESKTOP_INI),
        ("gone hidden system", "index.dat", url_index([("URL ", "Visited: family@http://news.example.com/", "")])),
    ]),
    (HISTORY + r"\History.IE5\MSHist012001030520010312", [
        ("gone hidden", "index.dat", url_index([
            ("URL ", ":2001030520010312: family@http://shop.example.org/toys.html", "")])),
    ]),
    (r"C:\My Documents\History", [("stays", "Village history.doc", filler(2900, "village"))]),
    (r"C:\WINDOWS\Downloaded Program Files", [
        ("gone hidden", "desktop.ini", text("[.ShellClassInfo]", "CLSID={88C6C381-2E85-11d0-94DE-444553540000}")),
        ("gone", "ticker.ocx", filler(6000, "ticker")),
        ("gone", "ticker.inf", text("[version]", 'signature="$CHICAGO$"', "[Add.Code]", "ticker.ocx=ticker.ocx")),
    ]),
    (r"C:\WINDOWS\Downloaded Program Files\CONFLICT.1", [("gone", "ticker.ocx", filler(5800, "ticker 1"))]),
    (r"C:\WINDOWS\Downloaded Installations", [("stays", "printer.msi", filler(4000, "printer"))]),
    (r"C:\WINDOWS\Favorites", [
        ("stays", "News.url", text("[InternetShortcut]", "URL=http://news.example.com/")),
        ("stays", "Toy shop.url", text("[InternetShortcut]", "URL=http://shop.example.org/")),
    ]),
]


def ns_cookies(*lines):
    return unix_text("# HTTP Cookie File", "# This is a generated file!  Do not edit.", "", *lines)


NS_FILES = [
    (MOZILLA, [("stays", "Registry.dat", profile_registry(
        "Mozilla", "Profiles", "default", "directory", DEFAULT, "kids", "directory", KIDS,
        "guest", "directory", r"D:\Profiles\guest\p0old111.slt"))]),  # a profile that is no longer there
    (DEFAULT, [
        ("stays", "cookies.txt", ns_cookies(
            ".news.example.com\tTRUE\t/\tFALSE\t1149206400\tregion\tnorth",  # kept
            ".news.example.com\tTRUE\t/\tFALSE\t1149206400\tlastvisit\t983750400",
            "shop.example.org\tFALSE\t/\tFALSE\t1072915200\tbasket\tA77-1904",
            ".ads.example.net\tTRUE\t/\tFALSE\t1893456000\tid\t8f13c2")),
        ("stays", "ZUBKeepNS6.inf", text(".news.example.com\tregion\t")),
        ("gone", "history.dat", filler(7000, "ns history")),
        ("gone", "history.mab", filler(1200, "ns history mab")),
        ("stays", "history notes.txt", text("Essay on the old harbour: read chapters 2 and 5.")),
        ("stays", "abook.mab", filler(1800, "ns address book")),
        ("stays", "bookmarks.html", unix_text("<!DOCTYPE NETSCAPE-Bookmark-file-1>", "<TITLE>Bookmarks</TITLE>")),
        ("stays", "prefs.js", unix_text('user_pref("browser.startup.homepage", "http://news.example.com/");')),
    ]),
    (DEFAULT + r"\Cache", [
        ("gone", "_CACHE_MAP_", filler(1600, "map")),
        ("gone", "0A1B2C3Dd01", text("<html>Toys</html>")),
        ("gone readonly", "4E5F6071d01", gif((10, 80, 160))),
    ]),
    (DEFAULT + r"\NewCache", [("gone", "cache.dbm", filler(3000, "dbm"))]),
    (DEFAULT + r"\NewCache\01", [("gone", "M3A9E.htm", text("<html>Weather</html>"))]),
    (DEFAULT + r"\Cache.old", [("stays", "_CACHE_MAP_", filler(1600, "old map"))]),
    (DEFAULT + r"\Mail\pop.example.net", [
        ("stays", "Inbox", unix_text("From - Sun Mar 04 18:02:11 2001", "Subject: Birthday party", "", "Come at three!")),
        ("stays", "Inbox.msf", filler(900, "inbox")),
        ("stays", "Sent", unix_text("From - Sun Mar 04 19:10:40 2001", "Subject: Re: Birthday party", "", "We will.")),
        ("gone", "Trash", unix_text("From - Sat Mar 03 10:00:00 2001", "Subject: You have won", "", "Click here")),
        ("gone", "Trash.msf", filler(700, "trash")),
        ("stays", "Trash2001", unix_text("From - Mon Jan 01 09:00:00 2001", "Subject: Kept on purpose", "", "x")),
    ]),
    (DEFAULT + r"\Mail\pop.example.net\Trash.sbd", [
        ("stays", "Receipts", unix_text("From - Fri Mar 02 12:00:00 2001", "Subject: Receipt", "", "29.90")),
    ]),
    (DEFAULT + r"\Mail\Local Folders", [
        ("gone", "Trash", unix_text("From - Thu Mar 01 12:00:00 2001", "Subject: Offer", "", "Old")),
        ("stays", "Drafts", unix_text("From - Thu Mar 01 13:00:00 2001", "Subject: Letter", "", "Dear aunt,")),
    ]),
    (KIDS, [
        ("stays", "cookies.txt", ns_cookies(
            "games.example.com\tFALSE\t/\tFALSE\t1149206400\tplayer\tLena",  # kept
            ".games.example.com\tTRUE\t/\tFALSE\t1149206400\tscore\t4120")),
        ("stays", "ZUBKeepNS6.inf", text("games.example.com\tplayer\t")),
        ("gone", "history.dat", filler(2500, "kids history")),
        ("stays", "prefs.js", unix_text('user_pref("browser.startup.homepage", "http://games.example.com/");')),
    ]),
    (KIDS + r"\Cache", [("gone", "_CACHE_MAP_", filler(1600, "kids map"))]),
    (r"C:\Program Files\Netscape\Users\default", [
        ("stays", "cookies.txt", ns_cookies("old.example.com\tFALSE\t/\tFALSE\t946684799\tseen\tyes")),
        ("stays", "netscape.hst", filler(2000, "hst")),
    ]),
]

# What is left in each rewritten cookie file, for the note in expected.txt.
NS_COOKIES_LEFT = {DEFAULT: ".news.example.com region", KIDS: "games.example.com player"}
