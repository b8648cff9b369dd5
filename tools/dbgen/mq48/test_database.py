#!/usr/bin/env python3
"""Tests of the device database generator: its checks catch each kind of defect, and the
committed device and peripheral files of every series hold together.

Run: python3 -m unittest discover -s tools/dbgen/mq48 -p 'test_*.py'
"""
import copy
import os
import re
import sys
import unittest
import xml.etree.ElementTree as ET

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, HERE)
import checks  # noqa: E402
import gen_database  # noqa: E402
import generated  # noqa: E402

DB = os.path.normpath(os.path.join(HERE, "..", "..", "..", "MQ48DB"))
IRQ_LINE = re.compile(r"(\w+),(.+),(.+):(.+),(.+):(.+),(.+):(.+),(\w+)")
SYSTEM_VECTORS = ["Reset_IRQn", "NonMaskableInt_IRQn", "HardFault_IRQn",
                  "MemoryManagement_IRQn", "BusFault_IRQn", "UsageFault_IRQn", "SVCall_IRQn",
                  "DebugMonitor_IRQn", "PendSV_IRQn", "SysTick_IRQn"]
# Flash code of bits 6-10 of the PID, as the project writer decodes it.
FLASH_CODE = {0: 16, 2: 32, 4: 64, 7: 128, 9: 256, 11: 512, 13: 1024, 16: 4096}
FAMILIES = {f.name: f for f in gen_database.families()}
ROOTS = {name: gen_database.peripheral_roots(f) for name, f in FAMILIES.items()}


def section(root, term):
    for child in root:
        if child.get("term") == term:
            return child
    return None


def device_root(series, name):
    return ET.parse(os.path.join(DB, "device", series, name + ".xml")).getroot()


def peripheral(series, stem):
    return ET.parse(os.path.join(DB, "device", series, "Peripherals",
                                 stem + "-V1.0.xml")).getroot()


def generated_series():
    return [n for n in FAMILIES if n != "MQ48T110"]


class PlantedDefects(unittest.TestCase):
    """Each check on a family with one defect planted: the clean family passes, the planted
    one fails with the check's message."""

    def setUp(self):
        self.fam = FAMILIES["MQ48T050"]
        self.roots = copy.deepcopy(ROOTS["MQ48T050"])

    def problems(self):
        return checks.run(self.fam, self.roots)

    def assertCaught(self, text):
        found = self.problems()
        self.assertTrue(any(text in p for p in found), "%r not in %s" % (text, found))

    def test_the_shipped_tables_are_clean(self):
        for name, fam in FAMILIES.items():
            self.assertEqual(checks.run(fam, ROOTS[name]), [], name)

    def test_a_mode_signal_on_no_pin(self):
        sig = next(self.roots["USART"].iter("Signal"))
        sig.set("Name", "TXX")
        self.assertCaught("signal USART1_TXX is on no pin")

    def test_a_condition_that_names_nothing(self):
        cond = self.roots["SPI"].find("RefParameter/Condition")
        cond.set("Expression", "$IpInstance_NOTHING")
        self.assertCaught("expression names unknown SPI1_NOTHING")

    def test_a_default_outside_its_values_or_range(self):
        p = self.roots["TMR1"].find("RefParameter[@Name='Period']")
        p.set("DefaultValue", "70000")
        self.assertCaught("default 70000 outside 0..65535")
        p = self.roots["USART"].find("RefParameter[@Name='Databitnum']")
        p.set("DefaultValue", "USART_DATA_6BITS")
        self.assertCaught("default USART_DATA_6BITS not a possible value")

    def test_a_vector_twice_or_for_no_instance(self):
        irqn = self.roots["NVIC"].find("RefParameter[@Name='IRQn']")
        rows = irqn.findall("PossibleValue")
        irqn.append(copy.deepcopy(rows[-1]))
        self.assertCaught("stands twice")
        rows[-1].set("Condition", "TMR99")
        self.assertCaught("names no instance TMR99")

    def test_a_dma_channel_that_is_missing_or_has_no_vector(self):
        instance = self.roots["DMA"].find("RefMode/Parameter[@Name='Instance']")
        instance.find("PossibleValue").text = "DMA1_Channel9"
        self.assertCaught("names channel DMA1_Channel9 that the series lacks")
        irqn = self.roots["NVIC"].find("RefParameter[@Name='IRQn']")
        for v in irqn.findall("PossibleValue"):
            if v.get("Value").startswith("DMA1_Channel3"):
                irqn.remove(v)
        self.assertCaught("channel DMA1_Channel3 has no interrupt vector")

    def test_a_macro_of_another_module(self):
        v = self.roots["SPI"].find("RefParameter[@Name='FirstBit']/PossibleValue")
        v.set("Value", "USART_FIRST_BIT_MSB")
        self.assertCaught("macro USART_FIRST_BIT_MSB is not of module SPI_")

    def test_clock_limits_that_differ_from_the_clock_tree(self):
        table = checks.clock_table()
        self.assertEqual(table["MQ48T510"], (288.0, 144.0, 144.0))
        self.assertEqual(checks.check_clock_limits(self.fam, self.roots, table), [])
        table["MQ48T050"] = (120.0, 30.0, 30.0)
        found = checks.check_clock_limits(self.fam, self.roots, table)
        self.assertTrue(any("differ from the clock tree" in p for p in found), found)
        self.assertTrue(any("SCK limit" in p for p in found), found)

    def test_two_instances_on_one_multiplexer_number(self):
        pins = self.fam.pins
        saved = pins._mux["PA9"]
        try:
            pins._mux["PA9"] = saved + [("SPI1_SCK", 7)]
            found = checks.check_pins(self.fam)
            self.assertTrue(any("PA9: GPIO_MUX_7 serves USART1 and SPI1" in p
                                for p in found), found)
        finally:
            pins._mux["PA9"] = saved

    def test_a_semaphore_of_an_instance_without_a_route(self):
        fam = FAMILIES["MQ48T110"]
        roots = copy.deepcopy(ROOTS["MQ48T110"])
        self.assertEqual(checks.check_routes(fam, roots), [])
        # USART is not routed to the SPI on any series: its semaphore never arrives.
        cond = roots["SPI"].find("RefParameter/Condition")
        cond.set("Expression", "USART1_ASYNC")
        found = checks.check_routes(fam, roots)
        self.assertIn("SPI1/ClkDivision: USART1_ASYNC of USART1 never reaches SPI1",
                      found)


class SeriesFiles(unittest.TestCase):
    """The committed files of the generated series, read as the program reads them."""

    def each_device(self):
        for series in generated_series():
            for name, package, flash, sram in FAMILIES[series].pins.DEVICES:
                yield series, name, package, flash, device_root(series, name)

    def test_base_info_matches_the_catalogue_row(self):
        for series, name, package, flash, root in self.each_device():
            info = section(root, "MCUBaseInfo")[0]
            kind = re.match(r"[A-Z]+", package).group(0)
            count = int(package[len(kind):])
            self.assertEqual(info.get("MCUName"), name)
            self.assertEqual((info.get("Package"), int(info.get("PinNums"))), (kind, count))
            x, y = int(info.get("xPinNum")), int(info.get("yPinNum"))
            self.assertEqual((x, y), (0, count // 2) if kind == "TSSOP" else
                             (count // 4, count // 4), name)
            pid = int(info.get("PID"), 16)
            self.assertEqual(FLASH_CODE[(pid >> 6) & 0x1F], flash, name)

    def test_pins_are_numbered_once_and_typed_consistently(self):
        for series, name, package, flash, root in self.each_device():
            pins = list(section(root, "PinsList"))
            count = int(section(root, "MCUBaseInfo")[0].get("PinNums"))
            numbers = sorted({int(p.get("PinNum")) for p in pins})
            self.assertEqual(numbers, list(range(1, count + 1)), name)
            for p in pins:
                funcs = [sig.get("Func") for sig in p]
                fixed = p.get("PinFixed") == "true"
                self.assertEqual(fixed, p.get("PinType") in ("Power", "Reset", "Boot"))
                if fixed:
                    self.assertEqual(funcs, [])
                if p.get("PinType") == "I/O":
                    self.assertEqual(funcs[:4], ["GPIO_Input", "GPIO_Output", "GPIO_Analog",
                                                 "EVENTOUT"], p.get("PinName"))
                    self.assertEqual(len(funcs), len(set(funcs)), p.get("PinName"))

    def test_listed_bus_peripherals_find_pins_for_their_first_mode(self):
        buses = ("USART", "UART", "SPI", "I2C", "CAN", "SDIO", "QSPI", "EMAC", "DVP", "XMC",
                 "USB")
        for series, name, package, flash, root in self.each_device():
            funcs = {sig.get("Func") for p in section(root, "PinsList") for sig in p}
            for r in section(root, "PeripheralsList"):
                self.assertTrue(r.get("About") and r.get("AboutCH"))
                stem = peripheral(series, r.get("Name"))
                inst = r.get("InstanceName")
                if not inst.startswith(buses):
                    continue
                first = stem.find("ModeLogicOperator/Mode")
                groups = first.findall("ModeLogicOperator/*")
                fits = [all(n in funcs for s in g.iter("Signal")
                            for n in checks.expand(s.get("Name"), inst)) for g in groups]
                self.assertTrue(any(fits), (name, inst))

    def test_the_largest_device_lists_every_instance_of_its_series(self):
        for series in generated_series():
            fam = FAMILIES[series]
            devices = fam.pins.DEVICES
            big = max(devices, key=lambda d: (int(re.sub(r"\D", "", d[1])), d[2]))
            rows = [r.get("InstanceName")
                    for r in section(device_root(series, big[0]), "PeripheralsList")]
            self.assertEqual(rows, fam.instances(), series)

    def test_interrupt_tables_parse_with_the_system_vectors_first(self):
        for series in FAMILIES:
            irqn = peripheral(series, "NVIC").find("RefParameter[@Name='IRQn']")
            names = []
            for v in irqn.findall("PossibleValue"):
                m = IRQ_LINE.search(v.get("Value"))
                self.assertIsNotNone(m, v.get("Value"))
                for flag in (2, 3, 4, 5, 7):
                    self.assertIn(m.group(flag), ("Y", "N"), v.get("Value"))
                names.append(m.group(1))
                self.assertTrue(v.get("Comment") and v.get("CommentCH"))
            self.assertEqual(names[:10], SYSTEM_VECTORS, series)
            self.assertEqual(len(names), len(set(names)), series)

    def test_gpio_file_covers_every_io_pin_and_io_mode(self):
        for series in generated_series():
            root = peripheral(series, "GPIO")
            modes = {m.get("Name") for m in root.findall("RefMode")}
            records = {g.get("Name"): g for g in root.findall("GPIO_Pin")}
            remap = FAMILIES[series].fact("remap")
            for name, _, _, _ in FAMILIES[series].pins.DEVICES:
                for p in section(device_root(series, name), "PinsList"):
                    for sig in p:
                        self.assertIn(sig.get("IOMode"), modes, (series, sig.get("Func")))
                    if p.get("PinType") != "I/O":
                        continue
                    record = records.get(p.get("PinName"))
                    self.assertIsNotNone(record, (name, p.get("PinName")))
                    funcs = {sig.get("Func") for sig in p}
                    for ps in record.findall("PinSignal"):
                        self.assertIn(ps.get("Name"), funcs, (series, p.get("PinName")))
                    self.assertEqual(bool(record.findall("PinSignal")), not remap)

    def test_remap_groups_only_on_the_remap_families(self):
        for series in generated_series():
            fam = FAMILIES[series]
            name = fam.pins.DEVICES[-1][0]
            groups = list(section(device_root(series, name), "PinsSignalsGroup"))
            self.assertEqual(bool(groups), bool(fam.fact("remap")), series)
            for g in groups:
                gmux = g.get("GMUX")
                self.assertEqual(gmux == "", g.get("GroupNum") == "0", gmux)

    def test_crystal_and_serial_wire_work_on_every_package(self):
        for series in generated_series():
            crm = peripheral(series, "CRM").find("ModeLogicOperator/Mode[@Name='HEXT']")
            debug = [g for g in peripheral(series, "DEBUG").iter("Configuration")
                     if g.get("Name") == "SWD"]
            needed = [checks.expand(s.get("Name"), "CRM")[0] for s in crm.iter("Signal")]
            needed += [checks.expand(s.get("Name"), "DEBUG")[0] for s in debug[0].iter("Signal")]
            for name, _, _, _ in FAMILIES[series].pins.DEVICES:
                funcs = {sig.get("Func") for p in
                         section(device_root(series, name), "PinsList") for sig in p}
                for n in needed:
                    self.assertIn(n, funcs, (name, n))

    def test_edma_is_also_in_the_secondary_folder(self):
        for series in ("MQ48T510", "MQ48T520"):
            folder = os.path.join(DB, "device", series)
            with open(os.path.join(folder, "Peripherals", "EDMA-V1.0.xml"), "rb") as a, \
                    open(os.path.join(folder, "device", "Peripherals", "EDMA-V1.0.xml"),
                         "rb") as b:
                self.assertEqual(a.read(), b.read())

    def test_timers_share_files_by_kind(self):
        stems = FAMILIES["MQ48T510"].file_stems()
        self.assertEqual(stems["TMR10_11_13_14"], ["TMR10", "TMR11", "TMR13", "TMR14"])
        self.assertEqual(stems["TMR6_7"], ["TMR6", "TMR7"])
        self.assertEqual(FAMILIES["MQ48T120"].file_stems()["TMR10_11_13"], ["TMR13"])
        self.assertIn("XMC_NORFlash-PSRAM-SRAM-ROM-LCD_3", stems["XMC3"])
        self.assertEqual(generated.stem_of({}, "XMC_NANDFlash", []), "XMC_NANDFlash")


if __name__ == "__main__":
    unittest.main()
