#!/usr/bin/env python3
"""Writes the MQ48T110 part of the database: device and peripheral files.

Usage: gen_t110.py [--db DIR] [--check]

DIR is the MQ48DB folder (default: the one of this checkout). --check
only verifies the tables and writes nothing.
"""
import argparse
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

import checks  # noqa: E402
import devices  # noqa: E402
import ip_system  # noqa: E402
import macros  # noqa: E402
from model import write_xml  # noqa: E402

try:
    import ip_comm
except ImportError:  # later stages may be absent while they are written
    ip_comm = None
try:
    import ip_analog
except ImportError:
    ip_analog = None
try:
    import ip_timers
except ImportError:
    ip_timers = None
try:
    import ip_misc
except ImportError:
    ip_misc = None

SERIES = "MQ48T110"


def peripheral_builders():
    """{file stem: function(instances) -> root element}."""
    b = {
        "GPIO": lambda inst: ip_system.gpio_file(),
        "NVIC": lambda inst: ip_system.nvic_file(),
        "DMA": lambda inst: ip_system.dma_file(),
        "CRM": lambda inst: ip_system.crm_file(),
        "DEBUG": lambda inst: ip_system.debug_file(),
        "SCFG": lambda inst: ip_system.scfg_file(),
        "EXINT": lambda inst: ip_system.exint_file(),
    }
    for mod in (ip_comm, ip_analog, ip_timers, ip_misc):
        if mod is not None:
            b.update(mod.BUILDERS)
    return b


def main():
    here = os.path.dirname(os.path.abspath(__file__))
    default_db = os.path.normpath(os.path.join(here, "..", "..", "..",
                                               "MQ48DB"))
    ap = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    ap.add_argument("--db", default=default_db)
    ap.add_argument("--check", action="store_true")
    args = ap.parse_args()

    builders = peripheral_builders()
    roots = {}
    for stem, insts in devices.file_stems().items():
        if stem in builders:
            roots[stem] = builders[stem](insts)
    problems = checks.run(roots)
    for p in problems:
        print("error: " + p, file=sys.stderr)
    if problems:
        return 1
    if args.check:
        return 0

    dev_dir = os.path.join(args.db, "device", SERIES)
    per_dir = os.path.join(dev_dir, "Peripherals")
    os.makedirs(per_dir, exist_ok=True)
    for name, package, flash, sram in __import__("pins").DEVICES:
        write_xml(devices.device_root(name, package, flash, sram),
                  os.path.join(dev_dir, name + ".xml"))
    for stem, root in roots.items():
        write_xml(root, os.path.join(per_dir, "%s-%s.xml"
                                     % (stem, devices.VERSION)))
    docs = os.path.normpath(os.path.join(args.db, "..", "docs",
                                         "firmware-macros.md"))
    if os.path.isdir(os.path.dirname(docs)):
        macros.write(roots, docs)
    missing = sorted(set(devices.file_stems()) - set(roots))
    print("wrote %d device files and %d peripheral files%s"
          % (len(__import__("pins").DEVICES), len(roots),
             "; not yet written: " + ", ".join(missing) if missing else ""))
    return 0


if __name__ == "__main__":
    sys.exit(main())
