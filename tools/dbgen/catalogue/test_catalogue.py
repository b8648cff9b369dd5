#!/usr/bin/env python3
"""Checks the committed catalogue and series pages (the device files have their own
generator, tools/dbgen/mq48).

Run: python3 -m unittest discover -s tools/dbgen/catalogue -p 'test_*.py'
"""
import filecmp
import os
import re
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ET

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, HERE)
import gen_catalogue  # noqa: E402
import series as S  # noqa: E402

DB = os.path.join(HERE, "..", "..", "..", "MQ48DB")
WORK_FORM_SERIES = ["MQ48T510", "MQ48T520", "MQ48T250", "MQ48V250", "MQ48T260", "MQ48T110",
                    "MQ48T120", "MQ48T320", "MQ48W320", "MQ48T310", "MQ48T230", "MQ48T050",
                    "MQ48T130", "MQ48V130", "MQ48T220", "MQ48T210"]
def section(root, term):
    for child in root:
        if child.get("term") == term:
            return child
    return None


def catalogue():
    root = ET.parse(os.path.join(DB, "MCUList.xml")).getroot()
    serials = [e.get("Serial") for e in section(root, "MCUSerialsList")]
    packages = [e.text for e in section(root, "MCUPackageList")]
    rows = {s: [dict(e.attrib) for e in section(root, s)] for s in serials}
    return serials, packages, rows


class CatalogueTest(unittest.TestCase):
    def test_series_follow_the_work_form_list_with_pages_in_both_languages(self):
        serials, packages, rows = catalogue()
        self.assertEqual(serials, WORK_FORM_SERIES)
        for s in serials:
            self.assertTrue(rows[s], s)
            for lang in ("EN", "CH"):
                path = os.path.join(DB, "device", s, "%s_Info_%s.htm" % (s, lang))
                with open(path, encoding="utf-8") as f:
                    text = f.read()
                self.assertIn("generated", text.lower())
                self.assertIn(s, text)
                # Self-contained: nothing is loaded from elsewhere.
                self.assertNotRegex(text, r"(src|href)\s*=")

    def test_device_names_agree_with_package_flash_and_sram(self):
        serials, packages, rows = catalogue()
        names = set()
        for s, devices in rows.items():
            for d in devices:
                self.assertNotIn(d["Name"], names)
                names.add(d["Name"])
                code = d["Name"][len(s):]
                self.assertEqual(len(code), 3, d["Name"])
                self.assertTrue(d["Name"].startswith(s))
                self.assertEqual(d["Package"], S.PACKAGE_LETTERS[code[2]] +
                                 str(S.PIN_LETTERS[code[0]]), d["Name"])
                self.assertIn(d["Package"], packages)
                self.assertEqual(d["Flash"], "%d KB" % S.FLASH_LETTERS[code[1]], d["Name"])
                self.assertRegex(d["SRAM"], r"^\d+ KB$")
                if "MaxSRAM" in d:
                    self.assertGreater(int(d["MaxSRAM"].split()[0]),
                                       int(d["SRAM"].split()[0]))

    def test_t110_rows_are_the_agreed_ones(self):
        rows = catalogue()[2]["MQ48T110"]
        got = [(d["Name"], d["Package"], d["Flash"], d["SRAM"], d.get("MaxSRAM"))
               for d in rows]
        self.assertEqual(got, [
            ("MQ48T110F6P", "TSSOP20", "32 KB", "8 KB", None),
            ("MQ48T110F8P", "TSSOP20", "64 KB", "8 KB", None),
            ("MQ48T110K6U", "QFN32", "32 KB", "8 KB", None),
            ("MQ48T110K8U", "QFN32", "64 KB", "8 KB", None),
            ("MQ48T110K8T", "LQFP32", "64 KB", "8 KB", None),
            ("MQ48T110C8T", "LQFP48", "64 KB", "8 KB", None),
            ("MQ48T110CBT", "LQFP48", "128 KB", "16 KB", None)])

    def test_every_catalogue_row_can_be_opened(self):
        for s, devices in catalogue()[2].items():
            for d in devices:
                path = os.path.join(DB, "device", s, d["Name"] + ".xml")
                self.assertTrue(os.path.isfile(path), path)


class RegenerationTest(unittest.TestCase):
    def test_committed_output_is_what_the_script_writes(self):
        with tempfile.TemporaryDirectory() as tmp:
            gen_catalogue.main(["gen_catalogue.py", tmp])
            paths = [os.path.join(tmp, "MCUList.xml")]
            for ser in S.SERIES:
                for lang in ("EN", "CH"):
                    paths.append(os.path.join(tmp, "device", ser["name"],
                                              "%s_Info_%s.htm" % (ser["name"], lang)))
            for path in paths:
                rel = os.path.relpath(path, tmp)
                self.assertTrue(filecmp.cmp(path, os.path.join(DB, rel), shallow=False),
                                rel + " differs: run the generator again")


if __name__ == "__main__":
    unittest.main()
