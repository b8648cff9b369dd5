#!/usr/bin/env python3
"""Checks the committed catalogue, series pages and generated device files.

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
import gen_devices  # noqa: E402
import series as S  # noqa: E402

DB = os.path.join(HERE, "..", "..", "..", "MQ48DB")
WORK_FORM_SERIES = ["MQ48T510", "MQ48T520", "MQ48T250", "MQ48V250", "MQ48T260", "MQ48T110",
                    "MQ48T120", "MQ48T320", "MQ48W320", "MQ48T310", "MQ48T230", "MQ48T050",
                    "MQ48T130", "MQ48V130", "MQ48T220", "MQ48T210"]
# The NVIC line as the program's reader splits it.
IRQ_LINE = re.compile(r"(\w+),(.+),(.+):(.+),(.+):(.+),(.+):(.+),(\w+)")
SYSTEM_VECTORS = ["Reset_IRQn", "NonMaskableInt_IRQn", "HardFault_IRQn",
                  "MemoryManagement_IRQn", "BusFault_IRQn", "UsageFault_IRQn", "SVCall_IRQn",
                  "DebugMonitor_IRQn", "PendSV_IRQn", "SysTick_IRQn"]
# Flash code of bits 6-10 of the PID, as the project writer decodes it.
FLASH_CODE = {0: 16, 2: 32, 4: 64, 7: 128, 9: 256, 11: 512, 13: 1024, 16: 4096}


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


def own_series():
    return [s["name"] for s in S.SERIES if s["name"] not in gen_devices.SKIP]


def device_root(series, name):
    return ET.parse(os.path.join(DB, "device", series, name + ".xml")).getroot()


def full_signal(instance, short):
    if "EXINT" in short or "WKUP" in short or "IR_OUT" in short:
        return short
    return instance + "_" + short


def mode_signals(path, instance):
    """Per mode group: the full signal names the mode reader builds."""
    groups = []
    for mode in ET.parse(path).getroot().iter("Mode"):
        for inner in mode.findall("ModeLogicOperator"):
            for group in inner:
                names = [full_signal(instance, s.get("Name"))
                         for op in group.findall("SignalLogicalOp") for s in op]
                groups.append((mode.get("Name"), group.get("Name"), names))
    return groups


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


class DeviceFileTest(unittest.TestCase):
    def each_device(self):
        rows = catalogue()[2]
        for s in own_series():
            for d in rows[s]:
                yield s, d, device_root(s, d["Name"])

    def test_base_info_matches_the_catalogue_row(self):
        for s, d, root in self.each_device():
            info = section(root, "MCUBaseInfo")[0]
            kind = re.match(r"[A-Z]+", d["Package"]).group(0)
            count = int(d["Package"][len(kind):])
            self.assertEqual(info.get("MCUName"), d["Name"])
            self.assertEqual(info.get("Package"), kind)
            self.assertEqual(int(info.get("PinNums")), count)
            x, y = int(info.get("xPinNum")), int(info.get("yPinNum"))
            self.assertEqual((x, y), (0, count // 2) if kind == "TSSOP" else
                             (count // 4, count // 4), d["Name"])
            pid = int(info.get("PID"), 16)
            self.assertEqual(FLASH_CODE[(pid >> 6) & 0x1F], int(d["Flash"].split()[0]),
                             d["Name"])

    def test_pins_are_numbered_once_and_typed_consistently(self):
        for s, d, root in self.each_device():
            pins = list(section(root, "PinsList"))
            count = int(section(root, "MCUBaseInfo")[0].get("PinNums"))
            self.assertEqual([int(p.get("PinNum")) for p in pins], list(range(1, count + 1)))
            for p in pins:
                funcs = [sig.get("Func") for sig in p]
                fixed = p.get("PinFixed") == "true"
                self.assertEqual(fixed, p.get("PinType") in ("Power", "Reset", "Boot"),
                                 (d["Name"], p.get("PinName")))
                if fixed:
                    self.assertEqual(funcs, [])
                if p.get("PinType") == "I/O":
                    self.assertEqual(funcs[:4], ["GPIO_Input", "GPIO_Output", "GPIO_Analog",
                                                 "EVENTOUT"], p.get("PinName"))
                    self.assertEqual(len(funcs), len(set(funcs)), p.get("PinName"))
            supplies = {p.get("PinName") for p in pins if p.get("PinType") == "Power"}
            self.assertTrue({"VDD", "VSS"} <= supplies, d["Name"])

    def test_peripheral_rows_have_their_files(self):
        for s, d, root in self.each_device():
            rows = list(section(root, "PeripheralsList"))
            self.assertEqual([r.get("InstanceName") for r in rows],
                             ["CRM", "DEBUG", "GPIO", "NVIC"])
            for r in rows:
                self.assertTrue(r.get("About") and r.get("AboutCH"))
                path = os.path.join(DB, "device", s, "Peripherals",
                                    "%s-%s.xml" % (r.get("Name"), r.get("Version")))
                self.assertTrue(os.path.isfile(path), path)


class PeripheralFileTest(unittest.TestCase):
    def peripheral(self, s, stem):
        return os.path.join(DB, "device", s, "Peripherals", stem + "-" + gen_devices.VERSION +
                            ".xml")

    def test_nvic_lines_parse_and_start_with_the_system_vectors(self):
        for s in own_series():
            root = ET.parse(self.peripheral(s, "NVIC")).getroot()
            irqn = [p for p in root.findall("RefParameter") if p.get("Name") == "IRQn"][0]
            names, handlers = [], []
            for v in irqn.findall("PossibleValue"):
                m = IRQ_LINE.search(v.get("Value"))
                self.assertIsNotNone(m, v.get("Value"))
                for flag in (2, 3, 4, 5, 7):
                    self.assertIn(m.group(flag), ("Y", "N"), v.get("Value"))
                names.append(m.group(1))
                handlers.append(m.group(9))
                self.assertTrue(v.get("Comment") and v.get("CommentCH"))
            self.assertEqual(names[:10], SYSTEM_VECTORS, s)
            self.assertEqual(len(names), len(set(names)), s)
            self.assertEqual(len(handlers), len(set(handlers)), s)

    def test_priority_values_are_legal_only_in_their_groups(self):
        root = ET.parse(self.peripheral("MQ48T510", "NVIC")).getroot()
        params = {p.get("Name"): p for p in root.findall("RefParameter")}
        pre = {v.get("Value"): v.get("Condition").split("|")
               for v in params["PreemptionPriority"]}
        sub = {v.get("Value"): v.get("Condition").split("|")
               for v in params["SubPriority"]}
        self.assertEqual(len(pre["0"]), 5)
        self.assertEqual(pre["15"], ["NVIC_PRIORITY_GROUP_4"])
        self.assertEqual(sub["15"], ["NVIC_PRIORITY_GROUP_0"])
        self.assertNotIn("NVIC_PRIORITY_GROUP_1", pre["2"])

    def test_gpio_file_covers_every_io_pin_and_io_mode(self):
        rows = catalogue()[2]
        for s in own_series():
            root = ET.parse(self.peripheral(s, "GPIO")).getroot()
            modes = {m.get("Name") for m in root.findall("RefMode")}
            records = {g.get("Name"): g for g in root.findall("GPIO_Pin")}
            for d in rows[s]:
                for p in section(device_root(s, d["Name"]), "PinsList"):
                    for sig in p:
                        self.assertIn(sig.get("IOMode"), modes, (s, sig.get("Func")))
                    if p.get("PinType") != "I/O":
                        continue
                    record = records.get(p.get("PinName"))
                    self.assertIsNotNone(record, (d["Name"], p.get("PinName")))
                    funcs = {sig.get("Func") for sig in p}
                    for ps in record.findall("PinSignal"):
                        self.assertIn(ps.get("Name"), funcs, (s, p.get("PinName")))
            for record in records.values():
                fields = {sp.get("Name"): sp[0].get("Value")
                          for sp in record.findall("SpecificParameter")}
                bit = re.match(r"P[A-H](\d+)", record.get("Name")).group(1)
                self.assertEqual(fields["GPIO_x"], "GPIO" + record.get("PortName"))
                self.assertEqual(fields["GPIO_Pin"], "GPIO_PINS_" + bit)
                self.assertEqual(fields["EXINT_LINE_x"], "EXINT_LINE_" + bit)
                self.assertTrue(fields["SCFG_PINS_SOURCE_x"].endswith("SOURCE" + bit))

    def test_crm_and_debug_modes_find_their_pins(self):
        rows = catalogue()[2]
        for s in own_series():
            for stem in ("CRM", "DEBUG"):
                groups = mode_signals(self.peripheral(s, stem), stem)
                self.assertTrue(groups)
                for d in rows[s]:
                    funcs = {sig.get("Func") for p in
                             section(device_root(s, d["Name"]), "PinsList") for sig in p}
                    for mode, group, names in groups:
                        # The crystal and serial wire must work on every package.
                        if (mode, group) in (("HEXT", "Crystal"), ("HEXT", "BYPASS")) or \
                                group == "SWD":
                            for n in names:
                                self.assertIn(n, funcs, (d["Name"], mode, group))

    def test_crm_oscillator_items_keep_their_order(self):
        for s in own_series():
            groups = [(m, g) for m, g, _ in mode_signals(self.peripheral(s, "CRM"), "CRM")]
            self.assertEqual(groups[:4], [("HEXT", "BYPASS"), ("HEXT", "Crystal"),
                                          ("LEXT", "BYPASS"), ("LEXT", "Crystal")])


class RegenerationTest(unittest.TestCase):
    def test_committed_output_is_what_the_scripts_write(self):
        with tempfile.TemporaryDirectory() as tmp:
            gen_catalogue.main(["gen_catalogue.py", tmp])
            written = gen_devices.generate(tmp)
            self.assertTrue(written)
            paths = [os.path.join(tmp, "MCUList.xml")] + written
            for path in paths:
                rel = os.path.relpath(path, tmp)
                self.assertTrue(filecmp.cmp(path, os.path.join(DB, rel), shallow=False),
                                rel + " differs: run the generators again")

    def test_a_port_bit_twice_in_a_frame_is_refused(self):
        saved = gen_devices.P.FRAMES[20]
        try:
            gen_devices.P.FRAMES[20] = saved.replace("PA14", "PA13")
            with self.assertRaises(ValueError):
                gen_devices.build_pins("MQ48T050", 20)
        finally:
            gen_devices.P.FRAMES[20] = saved


if __name__ == "__main__":
    unittest.main()
