"""Device files: base info, pins with their functions, signal groups, peripheral list."""
import xml.etree.ElementTree as ET


def _pin_el(fam, parent, num, name, variant=None, remap_from=None):
    pins = fam.pins
    el = ET.SubElement(parent, "Pin")
    el.set("PinNum", str(num))
    el.set("PinName", name)
    if name in pins.FIXED:
        # attribute order of the shared conventions
        kind, en, ch = pins.FIXED[name]
        el.set("PinType", kind)
        el.set("GPIOStructure", "")
        if kind != "Clock":
            el.set("PinFixed", "true")
        el.set("Remarks_EN", en)
        el.set("Remarks_CH", ch)
        for func, iomode in pins.fixed_functions(name) if hasattr(
                pins, "fixed_functions") else ():
            f = ET.SubElement(el, "Signal")
            f.set("Func", func)
            f.set("IOMode", iomode)
        return el
    el.set("PinType", "I/O")
    el.set("GPIOStructure", pins.structure_of(name))
    en, ch = pins.remarks(name, remap_from)
    el.set("Remarks_EN", en)
    el.set("Remarks_CH", ch)
    if variant:
        el.set("Variant", variant)
    for func, iomode in pins.functions_of(name):
        f = ET.SubElement(el, "Signal")
        f.set("Func", func)
        f.set("IOMode", iomode)
        if hasattr(pins, "is_multi") and pins.is_multi(name, func):
            f.set("Multi", "true")
    return el


def device_root(fam, name, package, flash, sram):
    pins = fam.pins
    word, count, xn, yn, layout = pins.PACKAGES[package]
    root = ET.Element("Device")
    base = ET.SubElement(root, "Section", term="MCUBaseInfo")
    info = ET.SubElement(base, "Info")
    for k, v in (("MCUName", name), ("Package", word), ("PinNums", count),
                 ("xPinNum", xn), ("yPinNum", yn),
                 ("PID", pins.pid_of(package, flash, sram))):
        info.set(k, str(v))
    plist = ET.SubElement(root, "Section", term="PinsList")
    for num, pname in enumerate(layout, start=1):
        if "/" in pname and pname.split("/")[1].startswith("P"):
            normal, remapped = pname.split("/")
            _pin_el(fam, plist, num, normal, "NOPINREMAP")
            _pin_el(fam, plist, num, remapped, "PINREMAP", remap_from=normal)
        else:
            _pin_el(fam, plist, num, pname)
    # Families that multiplex every pin on its own have no signal groups.
    groups = ET.SubElement(root, "Section", term="PinsSignalsGroup")
    for ip, num, gmux, members in pins.groups() if hasattr(pins, "groups") else ():
        g = ET.SubElement(groups, "Group")
        g.set("IPName", ip)
        g.set("GroupNum", str(num))
        g.set("GMUX", gmux)
        for sig, pin in members:
            s = ET.SubElement(g, "GroupSignal")
            s.set("SignalName", sig)
            s.set("PinName", pin)
            s.set("TMRIPCanUse", "YES")
    periph = ET.SubElement(root, "Section", term="PeripheralsList")
    for group, inst, stem, en, ch in fam.rows_for(name):
        row = ET.SubElement(periph, "Peripheral")
        row.set("InstanceName", inst)
        row.set("Name", stem)
        row.set("GroupName", group)
        row.set("Version", fam.version)
        row.set("Config", "")
        row.set("About", en)
        row.set("AboutCH", ch)
    return root
