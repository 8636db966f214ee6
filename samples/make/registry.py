"""The registry of the PC. A row is (fate in a full wash, key, {value name: text, number or bytes}).

The first key removed as a whole switches the removal of single values to whole keys for the rest of the
process, so from the document history on, a key out of which one value is to go goes as a whole.
"""

USER = r"HKEY_CURRENT_USER\Software"
MACHINE = r"HKEY_LOCAL_MACHINE\Software"
EVERYONE = r"HKEY_USERS\.DEFAULT\Software"
CURRENT = USER + r"\Microsoft\Windows\CurrentVersion"
EXPLORER = CURRENT + r"\Explorer"
APPLETS = CURRENT + r"\Applets"
OFFICE = USER + r"\Microsoft\Office"
CACHES = MACHINE + r"\Microsoft\Windows\CurrentVersion\Internet Settings"
CLIP = r"\RealNetworks\RealPlayer\6.0\Preferences"


def numbered(stem, first, *entries):
    return {f"{stem}{number}": entry for number, entry in enumerate(entries, first)}


def in_order(letters, *entries):
    """A list of the shell: one letter for each entry, and the order of use."""
    return {**dict(zip("abcdefghij", entries)), "MRUList": letters}


def ansi(string):
    return string.encode("cp1252") + b"\0"


SHELL_FOLDERS = {
    "AppData": r"C:\WINDOWS\Application Data",
    "Cache": r"C:\WINDOWS\Temporary Internet Files",
    "Cookies": r"C:\WINDOWS\Cookies",
    "Desktop": r"C:\WINDOWS\Desktop",
    "Favorites": r"C:\WINDOWS\Favorites",
    "Fonts": r"C:\WINDOWS\FONTS",
    "History": r"C:\WINDOWS\History",
    "My Pictures": r"C:\My Documents\My Pictures",
    "NetHood": r"C:\WINDOWS\NetHood",
    "Personal": r"C:\My Documents",
    "Programs": r"C:\WINDOWS\Start Menu\Programs",
    "Recent": r"C:\WINDOWS\Recent",
    "SendTo": r"C:\WINDOWS\SendTo",
    "Start Menu": r"C:\WINDOWS\Start Menu",
    "Startup": r"C:\WINDOWS\Start Menu\Programs\StartUp",
    "Templates": r"C:\WINDOWS\TEMPLATES",
}

BUILT_IN = [
    ("stays", EXPLORER + r"\Shell Folders", SHELL_FOLDERS),
    # Documents, find, run.
    ("gone", EXPLORER + r"\RecentDocs", {
        "0": ansi("Holiday plans.doc"), "1": ansi("Household 2001.xls"), "2": ansi("Beach.bmp"),
        "MRUList": "cab"}),
    ("gone", EXPLORER + r"\StreamMRU", {"0": bytes(range(20)), "MRUListEx": bytes(4)}),
    ("gone", EXPLORER + r"\Streams\0", {"ViewView": bytes(28), "CabView": bytes(range(24))}),
    ("gone", EXPLORER + r"\Streams\Desktop", {"Toolbars": bytes(16)}),
    ("gone", EXPLORER + r"\Streams", {}),
    ("stays", EXPLORER + r"\StuckRects", {"Settings": bytes(40)}),
    ("stays", EXPLORER + r"\Advanced", {"Hidden": 2, "HideFileExt": 1}),
    ("gone", EXPLORER + r"\Doc Find Spec MRU", in_order("bac", "*.wav", "tax form", "Lena*.doc")),
    ("stays", EXPLORER + r"\FindComputerMRU", in_order("a", "PRINTSERVER")),
    ("gone", EXPLORER + r"\RunMRU", in_order("cab", r"regedit\1", r"notepad\1", r"d:\games\setup.exe\1")),
    ("stays", EXPLORER + r"\RunMRU backup", {"a": r"winipcfg\1"}),
    # Media player.
    ("gone", USER + r"\Microsoft\MediaPlayer\Player\RecentFileList",
     numbered("File", 0, r"D:\Music\Lena piano.wav", r"C:\My Documents\hello.wav")),
    ("gone", USER + r"\Microsoft\MediaPlayer\Player\RecentURLList",
     numbered("URL", 0, "http://news.example.com/live.asx", "http://games.example.com/tune.asx")),
    ("stays", USER + r"\Microsoft\MediaPlayer\Player\Extensions", {"wav": "PCM"}),
    # Office.
    ("gone", OFFICE + r"\9.0\Word\Data", {"Settings": bytes(range(90)), "Toolbars": bytes(12)}),
    ("gone", OFFICE + r"\8.0\Word\Data", {"Settings": bytes(range(40))}),
    ("gone", OFFICE + r"\9.0\Excel\Data", {"Settings": bytes(range(60))}),
    ("gone", OFFICE + r"\9.0\PowerPoint\Data", {"Settings": bytes(range(30))}),
    ("stays", OFFICE + r"\9.0\Word\Options", {"DOC-PATH": r"C:\My Documents", "BackgroundSave": "1"}),
    ("stays", OFFICE + r"\9.0\Excel\Options", {"DefaultPath": r"C:\My Documents"}),
    ("stays", OFFICE + r"\9.0\Outlook\Data", {"Settings": bytes(range(10))}),
    # Internet Explorer.
    ("gone", USER + r"\Microsoft\Internet Explorer\TypedURLs",
     numbered("url", 1, "http://news.example.com/", "http://shop.example.org/toys.html")),
    ("stays", USER + r"\Microsoft\Internet Explorer\Main", {"Start Page": "http://news.example.com/"}),
    ("stays", USER + r"\Microsoft\Internet Explorer", {"Download Directory": r"C:\WINDOWS\Desktop"}),  # row not ticked
    ("gone", CACHES + r"\5.0\Cache\Extensible Cache\MSHist012001030520010312", {
        "CacheLimit": 8192, "CachePath": r"C:\WINDOWS\History\History.IE5\MSHist012001030520010312",
        "CachePrefix": ":2001030520010312: "}),
    ("gone", CACHES + r"\5.0\Cache\Extensible Cache", {"": "history"}),
    ("gone", CACHES + r"\4.0\Cache\Extensible Cache\MSHist001999", {"CacheLimit": 4096}),
    ("gone", CACHES + r"\4.0\Cache\Extensible Cache", {}),
    ("stays", CACHES + r"\5.0\Cache\Content", {"CacheLimit": 20480, "CachePath": r"C:\WINDOWS\Temporary Internet Files"}),
    ("stays", CACHES + r"\4.0\Cache\Paths", {"Directory": r"C:\WINDOWS\Temporary Internet Files"}),
]

START = [
    ("stays", MACHINE + r"\Microsoft\Windows\CurrentVersion\Run", {
        "LoadPowerProfile": "Rundll32.exe powrprof.dll,LoadCurrentPwrScheme",
        "ScanRegistry": r"C:\WINDOWS\scanregw.exe /autorun",
        "SystemTray": "SysTray.Exe",
        "Zubrane": r"C:\Program Files\Zubrane\zub.exe /STARTUP"}),
    ("stays", MACHINE + r"\Microsoft\Windows\CurrentVersion\Run-", {"Find Fast": r"C:\Program Files\Office\findfast.exe"}),
    ("stays", CURRENT + r"\Run", {
        "Taskbar Display Controls": "RunDLL deskcp16.dll,QUICKRES_RUNDLLENTRY",
        "Zubrane": r"C:\Program Files\Zubrane\zub.exe /STARTUP"}),
    ("stays", CURRENT + r"\Run-", {"Message Service": r"C:\Program Files\Messenger\msg.exe /background"}),
]

# Rows of the standard catalogue. What is ticked in OPTIONS below goes.
APPLICATIONS = [
    ("gone", USER + r"\Adobe\Adobe Acrobat\4.0\AdobeViewer",
     numbered("avpRecentFile", 1, r"C:\My Documents\Tax guide.pdf", r"E:\BACKUP\Manual.pdf")),
    ("stays", USER + r"\Adobe\Adobe Acrobat\4.0\Language", {"UI": "ENU"}),
    ("stays", USER + r"\Adobe\Acrobat Reader\4.0\AdobeViewer", numbered("avpRecentFile", 1, r"C:\My Documents\Song book.pdf")),
    ("gone", USER + r"\Microsoft\MediaPlayer\Player\Settings", {"OpenDir": r"D:\Music"}),
    ("gone", EVERYONE + r"\Microsoft\MediaPlayer\Player\Settings", {"OpenDir": r"D:\Music"}),
    ("gone", EVERYONE + r"\Microsoft\MediaPlayer\Player\RecentFileList", numbered("File", 0, r"D:\Music\Noise.wav")),
    ("gone", EVERYONE + r"\Microsoft\MediaPlayer\Player\RecentURLList", numbered("URL", 0, "http://old.example.com/a.asx")),
    ("stays", EVERYONE + r"\Microsoft\MediaPlayer\Setup", {"Version": "7.01"}),
    ("stays", MACHINE + r"\Symantec\InstalledApps", {"NAV": r"C:\Program Files\Norton AntiVirus"}),
    ("gone", APPLETS + r"\Paint\Recent File List",
     numbered("File", 1, r"C:\My Documents\My Pictures\Beach.bmp", r"D:\Photos\Tom on bike.bmp")),
    ("stays", APPLETS + r"\Paint\View", {"Zoom": 2}),
    ("gone", APPLETS + r"\Wordpad\Recent File List",
     numbered("File", 1, r"C:\My Documents\Café menu.txt", r"C:\WINDOWS\Desktop\Shopping.txt")),
    ("stays", APPLETS + r"\Wordpad\Options", {"Wrap": 1}),
    ("stays", APPLETS + r"\Regedit", {"LastKey": r"My Computer\HKEY_CURRENT_USER\Software"}),
    ("gone", USER + r"\Nico Mak Computing\WinZip\filemenu",
     numbered("filemenu", 1, r"D:\Backup\photos.zip", r"C:\TEMP\piano.zip")),
    ("gone", USER + r"\Nico Mak Computing\WinZip\extract", numbered("extract", 0, r"D:\Photos", r"C:\TEMP")),
    ("stays", USER + r"\Nico Mak Computing\WinZip\caution", {"NoShareware": "1"}),
    ("gone", USER + r"\WinRAR\ArcHistory", numbered("", 0, r"D:\Backup\music.rar", r"C:\TEMP\game.rar")),
    ("gone", USER + r"\WinRAR\DialogEditHistory\ArcName", numbered("", 0, "music.rar")),
    ("gone", USER + r"\WinRAR\DialogEditHistory\ExtrPath", numbered("", 0, r"D:\Music")),
    ("stays", USER + r"\WinRAR\Interface", {"ShowToolbar": 1}),
    ("gone", USER + r"\Jasc\Paint Shop Pro 6\Recent File List", numbered("File", 1, r"D:\Photos\Tom on bike.bmp")),
    ("stays", USER + r"\Jasc\Paint Shop Pro 6\Color Dialog", {"Custom1": 255}),
    ("stays", USER + r"\Jasc\Paint Shop Pro 5\Recent File List", numbered("File", 1, r"D:\Photos\Old.bmp")),
    ("gone", USER + r"\Helios\TextPad 4\Recent File List",
     numbered("File", 1, r"C:\WINDOWS\Desktop\Shopping.txt", r"D:\Music\Songs.txt")),
    ("gone", USER + r"\Helios\TextPad 4\Find", numbered("History", 1, "candles", "milk")),
    ("stays", USER + r"\Helios\TextPad 4\Document Classes\Text", {"Members": "*.txt"}),
    ("gone", USER + CLIP + r"\MostRecentClips1", {"": r"D:\Music\Lena recital.rm"}),
    ("gone", USER + CLIP + r"\MostRecentClips2", {"": "http://news.example.com/live.ram"}),
    ("stays", USER + CLIP + r"\Volume", {"": "70"}),
    # The classes root is never reached by the spelling that traces use for it.
    ("stays", r"HKEY_CLASSES_ROOT\Software" + CLIP + r"\MostRecentClips1", {"": r"D:\Music\Lena recital.rm"}),
    # Not ticked.
    ("stays", r"HKEY_CURRENT_USER\Network\Recent\printserver", {"": "PRINTSERVER"}),
    ("stays", USER + r"\Psion\CurrentUser", {"Name": "5mx"}),
    ("stays", USER + r"\HeadLight\GetRight\TypedURLS", {"1": "http://games.example.com/demo.zip"}),
    ("stays", USER + r"\MediaScience\Sonique\Play_History", numbered("", 0, r"D:\Music\Lena piano.wav")),
    # The custom plugins.
    ("gone", USER + r"\Photo Album\Recent Albums", numbered("Album", 1, "Summer 2000", "Harbour")),
    ("gone", USER + r"\Photo Album\Viewer", {"LastFolder": r"D:\Photos"}),
    ("stays", USER + r"\Photo Album\Print", {"Paper": "A4"}),
    ("gone", USER + r"\Card Shop Deluxe\Recent Cards\Birthday", {"1": "Tom 11"}),
    ("gone", USER + r"\Card Shop Deluxe\Recent Cards", {"Count": 1}),
    ("gone", MACHINE + r"\Card Shop Deluxe\Last Recipients", {"Name1": "Aunt in the harbour street"}),
    ("stays", USER + r"\Card Shop Deluxe\Fonts", {"Title": "Comic"}),
    ("stays", MACHINE + r"\Card Shop Deluxe", {"Serial": "0000-1234"}),
]

ON = ("chkIE chkWMP chkOfficeMRU chkRecycleBin chkScanDisk chkNetscape chkRunHistory chkDocHistory chkTempFolder "
      "chkFindHistory chkIECache chkIECookies chkIEPrograms chkIEIndex chkIEAutocomplete chkNSCache chkNSCookie "
      "chkNSMail chkNSHistory chkLoadStartup").split()
OFF = "chkCloseAfterWash chkBleach chkSkipPlugins chkSkipMessages chkRunStarted chkRunShutDown chkRunAuto".split()
CUSTOM_PLUGINS = ["Card Shop Deluxe", "Home Photo Album", "Modem and Fax Logs"]
STANDARD_PLUGINS = [
    "ACDSee", "Adobe Acrobat Full 4.x", "Gold Wave Editor", "Microsoft Media Player 7.x", "Norton AntiVirus 2000",
    "Paint Shop Pro 6.x", "Real Player 7.x, 8.x and GT2", "Text Pad 4.x", "Windows Paint",
    "Windows Task Scheduler Logs", "Windows WBEM Logs", "Windows WordPad", "WinRAR (all versions)",
    "WinZip 7.x and 8.x", "Zone Labs Zone Alarm Firewall",
]

OPTIONS = [("stays", USER + r"\ZUB", {
    "ZUBPath": r"C:\Program Files\Zubrane",
    "lblLastRemoval": "Last removal on 2/25/2001 at 8:15:00 PM",
    "cmbShredder": "0",
    "ComboInterval": "0",
    **{name: "1" for name in ON},
    **{name: "0" for name in OFF},
    **{"ZUBPlugin " + name: "1" for name in CUSTOM_PLUGINS},
    **{"ZUBStandardPlugin " + name: "1" for name in STANDARD_PLUGINS},
})]

KEYS = BUILT_IN + START + APPLICATIONS + OPTIONS
