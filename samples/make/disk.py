"""The files of the PC but for the browsers'. A row is (folder, [(marks, name, bytes)]).

Marks begin with the fate in a full wash, "gone" or "stays"; behind it "hidden", "system", "readonly" and
"locked" (held open by another program) where they apply.
"""

from formats import filler, link, picture, recycle_index, sound, text

APPDATA = r"C:\WINDOWS\Application Data"

WINDOWS_FILES = [
    ("C:", [
        ("stays hidden", "AUTOEXEC.BAT", text("@ECHO OFF", "SET TEMP=C:\\WINDOWS\\TEMP", "PROMPT $P$G")),
        ("stays", "CONFIG.SYS", text("DEVICE=C:\\WINDOWS\\HIMEM.SYS", "DOS=HIGH,UMB", "FILES=60")),
        ("stays hidden system readonly", "MSDOS.SYS", text("[Paths]", "WinDir=C:\\WINDOWS", "[Options]", "BootGUI=1")),
        ("gone", "SCANDISK.LOG", text("Microsoft ScanDisk", "", "ScanDisk found lost file fragments on drive C.")),
        ("gone", "FILE0000.CHK", filler(8192, "chk c0")),
        ("gone readonly", "FILE0001.CHK", filler(4096, "chk c1")),
        ("stays", "SCANDISK.OLD", text("Kept by hand.")),
        ("stays", "FILE0002.TXT", text("What was saved out of FILE0002.CHK: the letter to the bank.")),
    ]),
    (r"C:\WINDOWS", [
        ("stays", "WIN.INI", text("[windows]", "load=", "run=", "[Desktop]", "Wallpaper=C:\\WINDOWS\\Clouds.bmp")),
        ("stays", "SYSTEM.INI", text("[boot]", "shell=Explorer.exe", "[386Enh]", "PagingFile=C:\\WINDOWS\\WIN386.SWP")),
        ("stays", "Clouds.bmp", picture(64, 48, "clouds")),
        # Standard rows that are ticked.
        ("gone", "goldwave.ini", text("[Recent]", "File1=D:\\Music\\Lena piano.wav", "File2=C:\\My Documents\\hello.wav")),
        ("stays", "gwpreset.ini", text("[Echo]", "Cave=0.5 0.3")),
        ("gone", "SchedLog.Txt", text('"Task Scheduler Service"', "   Started at 3/4/01 8:01:12 AM")),
        ("gone", "wmplibrary_v_0_12.db", filler(5000, "wmp library")),
        ("stays", "wmprfdeu.prx", filler(800, "wmp profile")),
        # Standard rows that are not ticked.
        ("stays", "wincmd.ini", text("[LeftHistory]", "0=C:\\My Documents", "[RightHistory]", "0=D:\\Music")),
        ("stays", "i_view32.ini", text("[MRU]", "File1=C:\\My Documents\\My Pictures\\Beach.bmp")),
        ("stays", "wininit.bak", text("[rename]", "NUL=C:\\WINDOWS\\SYSTEM\\OLDDRV.VXD")),
        ("stays", "faultlog.txt", text("Date 02/11/2001 Time 17:44", "PAINT caused an invalid page fault.")),
        # The custom plugin for the modem.
        ("gone", "MODEMLOG.TXT", text("03-04-2001 18:00:02.11 - 56K Modem in use.", "03-04-2001 18:00:31.48 - Connected.")),
        ("gone hidden", "ModemLog_ISDN.txt", text("02-20-2001 20:15:09.00 - ISDN adapter in use.")),
        ("gone readonly", "PPPLOG.TXT", text("03-04-2001 18:00:33.10 - Remote access driver log opened.")),
        ("stays", "MODEM.TXT", text("Modem set-up codes: AT&F1 for quiet dialling.")),
    ]),
    (r"C:\WINDOWS\SYSTEM\WBEM\LOGS", [
        ("gone", "FRAMEWORK.LOG", text("Provider loaded 03/04/2001")),
        ("gone", "WINMGMT.LOG", text("WinMgmt started 03/04/2001", "WinMgmt stopped 03/04/2001")),
    ]),
    (r"C:\WINDOWS\SYSTEM\WBEM\LOGS\Archive", [("stays", "WINMGMT.LO_", filler(900, "old log"))]),
    (r"C:\WINDOWS\SYSTEM\WBEM", [("stays", "CIMWIN32.MOF", text("#pragma namespace (\"root\\\\cimv2\")"))]),
    (r"C:\WINDOWS\Internet Logs", [
        ("gone", "tvDebug.log", text("ZA start 03/04/2001 08:01")),
        ("gone", "vsmon01.log", text("PE,2001/03/04,18:00:31,Browser,192.0.2.7:80,N/A")),
        ("stays", "IAMDB.RDB", filler(3000, "firewall rules")),
    ]),
    (r"C:\WINDOWS\Recent", [
        ("gone hidden", "desktop.ini", text("[.ShellClassInfo]", "CLSID={0AFACED1-E828-11D1-9187-B532F1E9575D}")),
        ("gone", "Holiday plans.doc.lnk", link(r"C:\My Documents\Holiday plans.doc")),
        ("gone", "Household 2001.xls.lnk", link(r"C:\My Documents\Household 2001.xls")),
        ("gone", "Beach.bmp.lnk", link(r"C:\My Documents\My Pictures\Beach.bmp")),
        ("gone readonly", "Lena piano.wav.lnk", link(r"D:\Music\Lena piano.wav")),
    ]),
    (r"C:\WINDOWS\Recent documents kept", [("stays", "Holiday plans.lnk", link(r"C:\My Documents\Holiday plans.doc"))]),
    (r"C:\WINDOWS\SendTo", [("stays", "My Documents.mydocs", b"")]),
    (r"C:\WINDOWS\Desktop", [
        ("stays", "Letter to school.lnk", link(r"C:\My Documents\Letter to school.doc")),
        ("stays", "Shopping.txt", text("milk", "bread", "candles (11)")),
    ]),
    (r"C:\WINDOWS\TEMP", [
        ("gone", "~DF1C04.TMP", filler(16384, "df1c04")),
        ("stays locked", "~DF3A21.TMP", filler(1536, "df3a21")),
        ("gone", "~WRS0001.tmp", filler(2560, "wrs")),
        ("gone readonly", "SETUPLOG.TXT", text("Setup started 02/27/2001", "Copying files", "Done")),
        ("gone hidden", "thumbs.tmp", filler(2561, "thumbs")),
        ("gone system", "SWAP0001.SYS", filler(5120, "swap")),
        ("gone", "EPOCLOG.001", text("Handheld connected 02/18/2001 11:20")),
        ("gone", "Ergänzung.tmp", text("Entwurf, nicht gespeichert")),
        ("gone", "empty.tmp", b""),
    ]),
    (r"C:\WINDOWS\TEMP\WZ4F1A", [
        ("gone readonly", "README.TXT", text("Thank you for trying the piano tutor.")),
        ("gone", "PIANO.HLP", filler(7000, "piano")),
    ]),
    (r"C:\WINDOWS\TEMP\_ISTMP1.DIR", [("gone", "_SETUP.DLL", filler(3000, "setup dll"))]),
    (r"C:\WINDOWS\TEMP\_ISTMP1.DIR\Disk1\Data", [
        ("gone hidden readonly", "DATA1.CAB", filler(12000, "cab")),
        ("gone", "LAYOUT.BIN", filler(500, "layout")),
    ]),
    (r"C:\WINDOWS\TEMP\VBE", [
        ("stays locked", "MSForms.exd", filler(2000, "exd")),
        ("gone", "RefEdit.exd", filler(1400, "refedit")),
    ]),
    (r"C:\WINDOWS\TEMPLATES", [("stays", "WINWORD8.DOC", filler(1000, "template"))]),
    (r"C:\TEMP", [("stays", "Old tax form.doc", filler(1200, "tax"))]),
]

RECYCLED_INI = text("[.ShellClassInfo]", "CLSID={645FF040-5081-101B-9F08-00AA002F954E}")

BINS = [
    (r"C:\RECYCLED", [
        ("gone hidden system", "desktop.ini", RECYCLED_INI),
        ("gone hidden", "INFO2", recycle_index(2, [
            (0, r"C:\My Documents\Diary.txt", 58), (1, r"C:\My Documents\Draft.doc", 3000),
            (4, r"C:\WINDOWS\Desktop\Present ideas.txt", 44)])),
        ("gone", "DC0.TXT", text("Dear diary, the party was a secret. Nobody knew a thing.")),
        ("gone readonly", "DC1.DOC", filler(3000, "draft")),
        ("gone", "DC4.TXT", text("Present ideas for Tom: train, kite, atlas.")),
    ]),
    (r"D:\RECYCLED", [
        ("gone hidden system", "desktop.ini", RECYCLED_INI),
        ("gone hidden", "INFO2", recycle_index(3, [
            (0, r"D:\Photos\Blurred.bmp", 3126), (1, r"D:\Music\Noise.wav", 2044)])),
        ("gone", "DD0.BMP", picture(32, 32, "blurred")),
        ("gone", "DD1.WAV", sound(2000)),
    ]),
    (r"D:\Recycled paper", [("stays", "School project.doc", filler(2200, "paper"))]),
]

APPLICATION_FILES = [
    (APPDATA + r"\Microsoft\Office\Recent", [
        ("gone", "index.dat", text("[folders]", "My Documents=0")),
        ("gone", "Holiday plans.LNK", link(r"C:\My Documents\Holiday plans.doc")),
        ("gone", "Household 2001.LNK", link(r"C:\My Documents\Household 2001.xls")),
        ("gone hidden", "My Documents.LNK", link(r"C:\My Documents")),
    ]),
    (APPDATA + r"\Microsoft\Office", [("stays", "Word.qat", filler(600, "toolbar"))]),
    (APPDATA + r"\Microsoft\Templates", [("stays", "Normal.dot", filler(4000, "normal"))]),
    (APPDATA + r"\Microsoft\Outlook Express", [  # its row is not ticked
        ("stays", "Inbox.dbx", filler(6000, "inbox")),
        ("stays", "Sent Items.dbx", filler(3000, "sent")),
    ]),
    (APPDATA + r"\Microsoft\Media Player", [
        ("gone", "wmplibrary.xml", text("<library/>")),
        ("gone", "Recent.asx", text("<asx/>")),
    ]),
    (APPDATA + r"\Microsoft\Media Player\Playlists", [("stays", "Party.m3u", text("D:\\Music\\Lena piano.wav"))]),
    (APPDATA + r"\ACD Systems\ACDSee", [
        ("gone", "ImageDB.ddf", filler(2048, "ddf")),
        ("gone readonly", "ImageDB.dtf", filler(4096, "dtf")),
        ("stays", "Categories.txt", text("Family", "Holidays")),
    ]),
    (r"C:\Program Files\Norton AntiVirus", [
        ("gone", "Activity.log", text("3/4/2001 Virus scan: 0 files infected")),
        ("stays", "Quarantine.log", text("empty")),
    ]),
    (r"C:\Program Files\Photo Album", [
        ("gone", "Album.lst", text("C:\\My Documents\\My Pictures\\Beach.bmp")),
        ("gone", "~sort1.tmp", filler(1100, "sort")),
        ("stays", "Album.cfg", text("Border=white")),
    ]),
    (r"C:\Program Files\Photo Album\Cache", [
        ("gone", "0001.thm", filler(700, "thm 1")),
        ("stays", "Cache.cfg", text("Limit=200")),
    ]),
    (r"C:\Program Files\Photo Album\Cache\2000\Summer", [
        ("gone", "0014.thm", filler(700, "thm 14")),
        ("gone hidden", "0015.THM", filler(700, "thm 15")),
        ("stays", "Captions.txt", text("0014 The harbour at noon")),
    ]),
    (r"C:\Program Files\Photo Album\Frames", [("stays", "Wood.thm", filler(800, "frame"))]),
]

FAMILY_FILES = [
    (r"C:\My Documents", [
        ("stays", "Holiday plans.doc", filler(5000, "holiday")),
        ("stays", "Household 2001.xls", filler(4200, "household")),
        ("stays readonly", "Letter to school.doc", filler(2600, "letter")),
        ("stays", "Café menu.txt", text("Soup of the day", "Crème brûlée")),
        ("stays", "FILE0001.CHK", text("A copy, kept on purpose.")),
        ("stays", "history.dat", text("Dates of the family tree: 1871, 1904, 1938")),
        ("stays", "hello.wav", sound(1600)),
    ]),
    (r"C:\My Documents\My Pictures", [
        ("stays", "Beach.bmp", picture(64, 64, "beach")),
        ("stays", "Garden.bmp", picture(64, 48, "garden")),
    ]),
    (r"C:\My Documents\Temp", [("stays", "School timetable.txt", text("Mon 8:00 Maths", "Tue 8:00 Music"))]),
    ("D:", [
        ("gone", "SCANDISK.LOG", text("Microsoft ScanDisk", "", "ScanDisk did not find any problems on drive D.")),
        ("gone", "FILE0000.CHK", filler(4096, "chk d0")),
        # The list of names comes from drive C: alone, and there is no such name there.
        ("stays", "FILE0007.CHK", filler(2048, "chk d7")),
    ]),
    (r"D:\Music", [("stays", "Lena piano.wav", sound(6000)), ("stays", "Songs.txt", text("1 Prelude", "2 March"))]),
    (r"D:\Photos", [("stays", "Tom on bike.bmp", picture(60, 45, "bike"))]),
    (r"D:\Backup\TEMP", [("stays", "Accounts.bak", filler(1800, "accounts"))]),
    ("E:", [  # a burned copy of drive D:
        ("stays", "AUTORUN.INF", text("[autorun]", "label=Backup 2000")),
        ("stays", "SCANDISK.LOG", text("Microsoft ScanDisk", "", "Burned along with the rest.")),
        ("stays", "FILE0000.CHK", filler(1024, "chk e0")),
    ]),
    (r"E:\BACKUP", [("stays", "INDEX.TXT", text("Photos of 1999 and 2000, accounts of 2000"))]),
]

# Folders that a full wash empties with all that is below them; each stays itself.
EMPTIED = [
    r"C:\WINDOWS\Recent", r"C:\WINDOWS\TEMP", APPDATA + r"\Microsoft\Office\Recent",
    r"C:\WINDOWS\Temporary Internet Files", r"C:\WINDOWS\History", r"C:\WINDOWS\Downloaded Program Files",
    APPDATA + r"\Mozilla\Profiles\default\k3v9xq2t.slt\Cache",
    APPDATA + r"\Mozilla\Profiles\default\k3v9xq2t.slt\NewCache",
    APPDATA + r"\Mozilla\Profiles\kids\77dhm0ab.slt\Cache",
]

FACTS = [
    "# The family's PC as it stands on a Sunday evening.",
    "family = 9x",
    r"windows = C:\WINDOWS",
    r"temp = C:\WINDOWS\TEMP",
    r"program = C:\Program Files\Zubrane",
    "current = C:\\",
    "drive C = fixed",
    "drive D = fixed",
    "drive E = cdrom",
    "read only = E",
]
