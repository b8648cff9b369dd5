"""Which modes of a peripheral a package can carry, judged as the mode panel judges them:
a mode group is available when each of its real signals stands on a pin of the package;
virtual signals count by their family rule."""
import re

from checks import expand

# Virtual signals that stand for a pin ("SCFG_VS_PB9Ultra" -> "PB9").
ULTRA = re.compile(r"SCFG_VS_(P[A-H]\d+)Ultra$")


def package_functions(fam, package):
    """Every Func and pin name of one package."""
    out = set()
    for name in fam.pins.PACKAGES[package][4]:
        for part in name.split("/") if "/" in name and name.split("/")[1].startswith(
                "P") else [name]:
            out.add(part)
            if part in fam.pins.FIXED:
                out.update(f for f, _ in getattr(fam.pins, "fixed_functions",
                                                 lambda n: [])(part))
            else:
                out.update(f for f, _ in fam.pins.functions_of(part))
    return out


def _virtual_present(fam, name, package, funcs):
    word, count = fam.pins.PACKAGES[package][:2]
    m = ULTRA.match(name)
    if m:
        return m.group(1) in funcs
    if name == "SCFG_VS_PA11PA12_REMAP":
        return word == "TSSOP" and count == 20
    if name in ("SCFG_VS_I2S23", "SCFG_VS_I2S12", "SCFG_VS_I2S13"):
        if fam.name in ("MQ48T220", "MQ48T210"):
            return name == "SCFG_VS_I2S13" or not (word == "QFN" or count == 32)
        if fam.name == "MQ48T120":
            return name == "SCFG_VS_I2S12" or not (word == "TSSOP" or count == 20)
        return False
    return True


def mode_groups(root, inst):
    """[(mode element, group element, [full signal names])] of an instance."""
    virtual = {n for rs in root.findall("RefSignal") if rs.get("Virtual") == "true"
               for n in expand(rs.get("Name"), inst)}
    out = []
    for mode in root.iter("Mode"):
        groups = list(mode.iter("Configuration")) or [None]
        for g in groups:
            names = []
            if g is not None:
                for sig in g.iter("Signal"):
                    names += expand(sig.get("Name"), inst)
            out.append((mode, g, names, virtual))
    return out


def group_available(fam, inst, package, mode, group, names, virtual, funcs):
    word = fam.pins.PACKAGES[package][0]
    for remove, words in ((mode.get("RemoveCondition"), (fam.name, package, word)),
                          (group.get("RemoveCondition") if group is not None else None,
                           (fam.name, package, word, inst))):
        if remove and any(w and w in remove for w in words):
            return False
    for n in names:
        if n in virtual:
            if not _virtual_present(fam, n, package, funcs):
                return False
        elif n not in funcs:
            return False
    return True


# Instances whose modes are independent choices: any one of them makes the instance useful.
ANY_MODE = ("ADC", "SCFG", "DAC", "PWC", "EXINT", "CMP")


def instance_available(fam, root, inst, package, funcs=None):
    """Whether a device lists the instance: its first mode needs no pins or can be set on the
    package (for ANY_MODE instances: any of their modes can)."""
    funcs = funcs if funcs is not None else package_functions(fam, package)
    groups = mode_groups(root, inst)
    if not groups:
        return True
    if not inst.startswith(ANY_MODE):
        first = groups[0][0]
        groups = [g for g in groups if g[0] is first]
    if not any(names for _, _, names, _ in groups):
        return True
    return any(names and group_available(fam, inst, package, m, g, names, virtual, funcs)
               for m, g, names, virtual in groups)
