#!/usr/bin/env python3
"""Fails when a translatable text of the sources has no finished Chinese translation.

Runs lupdate over the source folders into a scratch catalogue and looks up every
(context, source) pair of it in the union of resources/i18n/*_zh.ts.

    check_catalogue.py SOURCE_DIR [LUPDATE]
"""
import os
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET

FOLDERS = ["app", "database", "widgets", "pinout", "peripherals", "clock", "codegen",
           "project", "report", "packages", "codeview"]


def entries(path):
    """(context, source) -> translation text ('' when unfinished) of one catalogue."""
    result = {}
    for context in ET.parse(path).getroot().iter("context"):
        name = context.findtext("name", "")
        for message in context.iter("message"):
            source = message.findtext("source", "")
            translation = message.find("translation")
            kind = translation.get("type", "") if translation is not None else "unfinished"
            if kind in ("obsolete", "vanished"):
                continue
            text = "" if kind == "unfinished" or translation is None else (translation.text or "")
            result[(name, source)] = text
    return result


def main():
    root = sys.argv[1]
    lupdate = sys.argv[2] if len(sys.argv) > 2 else "lupdate"
    known = {}
    i18n = os.path.join(root, "resources", "i18n")
    for name in sorted(os.listdir(i18n)):
        if name.endswith("_zh.ts"):
            for key, text in entries(os.path.join(i18n, name)).items():
                if text.strip():
                    known[key] = text
    folders = [os.path.join(root, f) for f in FOLDERS if os.path.isdir(os.path.join(root, f))]
    with tempfile.TemporaryDirectory() as scratch:
        ts = os.path.join(scratch, "all_zh.ts")
        subprocess.run([lupdate, "-silent", "-no-obsolete", "-locations", "none"] + folders
                       + ["-ts", ts], check=True, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL)
        wanted = entries(ts)
    missing = sorted(key for key in wanted if key not in known)
    for context, source in missing:
        print("no Chinese translation: [%s] %r" % (context, source))
    print("%d texts, %d without translation" % (len(wanted), len(missing)))
    return 1 if missing else 0


if __name__ == "__main__":
    sys.exit(main())
