#!/usr/bin/env python3
"""Writes the sample PC, the sample plugins, and the two lists beside them, always the same bytes.

The tables in make/ say what there is and what a full wash is to leave of it.
"""

import pathlib
import shutil
import sys

HERE = pathlib.Path(__file__).resolve().parent
sys.dont_write_bytecode = True
sys.path.insert(0, str(HERE / "make"))

from browsers import IE_FILES, NS_COOKIES_LEFT, NS_FILES
from disk import APPLICATION_FILES, BINS, EMPTIED, FACTS, FAMILY_FILES, WINDOWS_FILES
from formats import registry_text, text
from plugins import PLUGINS
from registry import KEYS

PC = HERE / "pc"
PLUGIN_FOLDER = r"C:\Program Files\Zubrane\Plugins"


def plugin_files():
    """Each plugin's three files as (name, bytes)."""
    for name, parts in PLUGINS.items():
        for number, lines in enumerate(parts, 1):
            yield f"{name}.zb{number}", text(*lines)


def all_files():
    """Every file of the PC as (Windows path, set of marks, bytes)."""
    tables = WINDOWS_FILES + BINS + APPLICATION_FILES + FAMILY_FILES + IE_FILES + NS_FILES
    tables.append((PLUGIN_FOLDER, [("stays", name, data) for name, data in plugin_files()]))
    for folder, rows in tables:
        for marks, name, data in rows:
            yield f"{folder}\\{name}", set(marks.split()), data


def host_path(path):
    return path.replace(":", "").replace("\\", "/")


def write(path, data):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(data)


def expected_lines(files):
    """What a full wash leaves: one "gone PATH" or "stays PATH" for each file, emptied folder and key; the
    values of a key that stays one by one, as KEY -> NAME, the unnamed value as "@"."""
    fates = {path: "gone" if "gone" in marks else "stays" for path, marks, _ in files}
    left = [path for path, fate in fates.items() if fate == "stays"]
    folders = {}
    for root in EMPTIED:
        folders[root] = "stays"
        for path in fates:
            folder = path.rpartition("\\")[0]
            while folder.startswith(root + "\\"):
                folders[folder] = "stays" if any(file.startswith(folder + "\\") for file in left) else "gone"
                folder = folder.rpartition("\\")[0]
    keys = {}
    for fate, key, values in KEYS:
        keys[key] = fate
        if fate == "stays":
            keys.update({f"{key} -> {name or '@'}": fate for name in values})
    lines = ["# After one full wash with the options as they stand in the sample's registry."]
    lines += [f"# Only this cookie is left in {folder}\\cookies.txt: {cookie}"
              for folder, cookie in NS_COOKIES_LEFT.items()]
    lines.append(r"# New, and empty: C:\ZUBKeepNS6.inf")
    for part in (fates, folders, keys):
        lines += [f"{fate} {path}" for path, fate in sorted(part.items(), key=lambda item: item[0].upper())]
    return lines


def main():
    for folder in (PC, HERE / "Plugins"):
        shutil.rmtree(folder, ignore_errors=True)
    files = sorted(all_files(), key=lambda file: file[0].upper())
    assert len({path.upper() for path, _, _ in files}) == len(files), "a path stands twice"
    assert len({key.upper() for _, key, _ in KEYS}) == len(KEYS), "a key stands twice"
    for path, _, data in files:
        write(PC / host_path(path), data)
    for name, data in plugin_files():
        write(HERE / "Plugins" / name, data)
    facts = [f"{mark} = {path}" for mark in ("hidden", "system", "locked") for path, marks, _ in files if mark in marks]
    write(PC / "pc.txt", "".join(line + "\r\n" for line in FACTS + facts).encode())
    write(PC / "registry.reg", registry_text({key: values for _, key, values in KEYS}))
    read_only = [host_path(path) for path, marks, _ in files if "readonly" in marks]
    write(HERE / "read-only.txt", "".join(line + "\n" for line in read_only).encode())
    write(HERE / "expected.txt", "".join(line + "\n" for line in expected_lines(files)).encode())


if __name__ == "__main__":
    main()
