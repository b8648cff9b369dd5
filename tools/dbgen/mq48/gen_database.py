#!/usr/bin/env python3
"""Writes the device and peripheral files of every series from the family tables.

Usage: gen_database.py [--db DIR] [--check] [--series NAME ...]

DIR is the MQ48DB folder (default: the one of this checkout). --check writes nothing: it
runs the consistency checks and compares every file with the committed one, byte for byte.
"""
import argparse
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

import availability  # noqa: E402
import checks  # noqa: E402
import devices  # noqa: E402
import ip_analog  # noqa: E402
import ip_bus  # noqa: E402
import ip_comm  # noqa: E402
import ip_misc  # noqa: E402
import ip_system  # noqa: E402
import ip_timers  # noqa: E402
import macros  # noqa: E402
from model import xml_text  # noqa: E402

HERE = os.path.dirname(os.path.abspath(__file__))
DEFAULT_DB = os.path.normpath(os.path.join(HERE, "..", "..", "..", "MQ48DB"))


def families():
    """Every family, in the order of the catalogue."""
    import generated
    import t110
    order = [s["name"] for s in generated.F.catalogue.SERIES]
    fams = [t110.FAMILY] + generated.all_families()
    return sorted(fams, key=lambda f: order.index(f.name))


def peripheral_builders(fam):
    """{file stem: function(instances) -> root element} of a family."""
    b = {
        "GPIO": lambda inst: ip_system.gpio_file(fam),
        "NVIC": lambda inst: ip_system.nvic_file(fam),
        "DMA": lambda inst: ip_system.dma_file(fam),
        "EDMA": lambda inst: ip_system.dma_file(fam, edma=True),
        "CRM": lambda inst: ip_system.crm_file(fam),
        "DEBUG": lambda inst: ip_system.debug_file(fam),
        "SCFG": lambda inst: ip_system.scfg_file(fam),
        "EXINT": lambda inst: ip_system.exint_file(fam),
    }
    for mod in (ip_comm, ip_analog, ip_timers, ip_misc, ip_bus):
        b.update(mod.builders(fam))
    return b


def peripheral_roots(fam):
    """{stem: root element} of every peripheral file of a family."""
    builders = peripheral_builders(fam)
    roots = {}
    for stem, insts in fam.file_stems().items():
        if stem not in builders:
            raise KeyError("%s: no builder for %s" % (fam.name, stem))
        roots[stem] = builders[stem](insts)
    if fam.fact("per_device_rows"):
        kept = {}
        for package in fam.pins.PACKAGES:
            funcs = availability.package_functions(fam, package)
            kept[package] = {inst for stem, insts in fam.file_stems().items()
                             for inst in insts
                             if availability.instance_available(fam, roots[stem], inst,
                                                                package, funcs)}
        packages = {name: package for name, package, _, _ in fam.pins.DEVICES}
        fam.device_instances = lambda device: kept[packages[device]]
    return roots


def family_files(fam, roots):
    """{path relative to the database folder: text} of a family."""
    out = {}
    series = os.path.join("device", fam.name)
    for name, package, flash, sram in fam.pins.DEVICES:
        out[os.path.join(series, name + ".xml")] = xml_text(
            devices.device_root(fam, name, package, flash, sram))
    for stem, root in roots.items():
        name = "%s-%s.xml" % (stem, fam.version)
        out[os.path.join(series, "Peripherals", name)] = xml_text(root)
        if stem == "EDMA":
            # The DMA panel reads its second controller from the secondary folder.
            out[os.path.join(series, "device", "Peripherals", name)] = xml_text(root)
    return out


def generate(selected=None):
    """({relative path: text}, [problems]) of the selected families (all when None)."""
    files, problems, all_roots = {}, [], []
    for fam in families():
        if selected and fam.name not in selected:
            continue
        roots = peripheral_roots(fam)
        problems += ["%s: %s" % (fam.name, p) for p in checks.run(fam, roots)]
        files.update(family_files(fam, roots))
        all_roots.append((fam, roots))
    if not selected:
        files[os.path.join("..", "docs", "firmware-macros.md")] = macros.text(all_roots)
    return files, problems


def differences(files, db):
    """Paths whose committed text differs from the generated one."""
    out = []
    for rel, text in sorted(files.items()):
        path = os.path.normpath(os.path.join(db, rel))
        try:
            with open(path, encoding="utf-8", newline="") as f:
                if f.read() == text:
                    continue
        except OSError:
            pass
        out.append(rel)
    return out


def main(argv=None):
    ap = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    ap.add_argument("--db", default=DEFAULT_DB)
    ap.add_argument("--check", action="store_true")
    ap.add_argument("--series", nargs="*")
    args = ap.parse_args(argv)

    files, problems = generate(args.series)
    for p in problems:
        print("error: " + p, file=sys.stderr)
    if problems:
        return 1
    if args.check:
        stale = differences(files, args.db)
        for rel in stale:
            print("differs from the tables: " + rel, file=sys.stderr)
        return 1 if stale else 0
    for rel, text in files.items():
        path = os.path.normpath(os.path.join(args.db, rel))
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8", newline="\n") as f:
            f.write(text)
    print("wrote %d files" % len(files))
    return 0


if __name__ == "__main__":
    sys.exit(main())
