"""The sample custom plugins: {name: (files, registry traces, information line and comments)}."""

NONE = ["No entries."]

PLUGINS = {
    "Home Photo Album": (
        [r"C:\Program Files\Photo Album\Album.lst",
         r"C:\Program Files\Photo Album\*.tmp",
         r"C:\Program Files\Photo Album\Cache\*.thm >plus subdirectories<"],
        [r"HKey_Current_User\Software\Photo Album\Recent Albums- Key*",
         r"HKey_Current_User\Software\Photo Album\Viewer+ Value`= LastFolder"],
        ["Cleans the lists, the thumbnails and the work files of Home Photo Album.",
         "The album makes its thumbnails again when it is opened.",
         "Change the paths if it is not installed in C:\\Program Files.", ""],
    ),
    "Card Shop Deluxe": (
        NONE,
        [r"HKey_Current_User\Software\Card Shop Deluxe\Recent Cards- Key*",
         r"HKey_Local_Machine\Software\Card Shop Deluxe\Last Recipients+ Value`= Name1"],
        ["Cleans the lists of recent cards and recipients of Card Shop Deluxe.", "Saved cards are left alone.", ""],
    ),
    "Modem and Fax Logs": (
        [r"C:\WINDOWS\ModemLog*.txt", r"C:\WINDOWS\ppplog.txt"],
        NONE,
        ["Cleans the logs of modems and of dial-up connections.", "Close all connections before the wash.", ""],
    ),
}
