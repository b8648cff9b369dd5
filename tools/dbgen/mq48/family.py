"""One series as the generator sees it: its pins, its peripheral rows and the facts that the
peripheral builders read.

The peripheral builders (``ip_*.py``) describe each kind of peripheral once and take a
``Family`` for everything that differs between series. A family's pin table (``pins``)
answers the questions the device writer and the GPIO file ask:

    DEVICES                 [(name, package, flash KB, SRAM KB)]
    PACKAGES                {package: (word, PinNums, xPinNum, yPinNum, [pin names])}
    FIXED                   {supply name: (PinType, remark EN, remark CH)}
    functions_of(pin)       [(Func, IOMode)] of an I/O pin, in file order
    mux_of(pin)             [(signal, mux number)] for the GPIO file's PinSignal rows
    all_io_pins()           every I/O pin name, by port and number
    all_signals()           every Func that stands on some pin of some package
    structure_of(pin)       "FT", "TC" or "TCa"
    remarks(pin, remap_from) (EN, CH) remark of an I/O pin
    pid_of(package, flash, sram)
    port_of(pin), pin_number(pin)
    groups()                remap groups [(IPName, GroupNum, GMUX, [(signal, pin)])]
"""

VERSION = "V1.0"


class Family:
    """A series: name, pin table, peripheral rows and per-kind facts (free attributes)."""

    def __init__(self, name, pins, peripherals, **facts):
        self.name = name
        self.pins = pins
        # [(group, [(instance, file stem, about EN, about CH)])] in tree order
        self.peripherals = peripherals
        self.version = VERSION
        self.__dict__.update(facts)

    def fact(self, key, default=None):
        return self.__dict__.get(key, default)

    def peripheral_rows(self):
        for group, rows in self.peripherals:
            for inst, stem, en, ch in rows:
                yield group, inst, stem, en, ch

    def file_stems(self):
        """{stem: [instances]} of every peripheral file."""
        out = {}
        for _, inst, stem, _, _ in self.peripheral_rows():
            out.setdefault(stem, []).append(inst)
        return out

    def instances(self):
        return [inst for _, inst, _, _, _ in self.peripheral_rows()]

    def has(self, *names):
        inst = set(self.instances())
        return all(n in inst for n in names)

    def rows_for(self, device):
        """Peripheral rows of one device; all rows unless the family leaves some out."""
        keep = self.fact("device_instances")
        for row in self.peripheral_rows():
            if keep is None or row[1] in keep(device):
                yield row

    def package_pins(self, package):
        """Set of I/O pin names present (in any variant) in a package."""
        out = set()
        for pname in self.pins.PACKAGES[package][4]:
            for p in pname.split("/"):
                if p not in self.pins.FIXED:
                    out.add(p)
        return out
