"""Consistency checks of the generated T110 peripheral files.

They mirror what the readers and evaluators of the program do with the
data, so that a typo in a table fails the generator instead of a panel.
"""
import re

import devices
import ip_system
import pins

KNOWN_TYPES = {"integer", "hexadecimal", "string", "double", "list",
               "string edit"}
IRQ_RE = re.compile(r"(\w+),(.+),(.+):(.+),(.+):(.+),(.+):(.+),(\w+)$")
# Virtual signals of the family that stand on no pin as such.
VIRTUAL = {"SCFG_VS_PA11PA12_REMAP"}


def expand(short, inst):
    """Full signal names of a mode signal element, as the reader builds them."""
    names = [short]
    if "--" in short:
        parts = short.split("--")
        ms = [re.search(r"([A-Z]+)([0-9]+)", p) for p in parts]
        if len(parts) == 2 and all(ms):
            lo, hi = int(ms[0].group(2)), int(ms[1].group(2))
            head = parts[0][:ms[0].start(2)]
            names = [head + str(i) for i in range(lo, hi + 1)]
    out = []
    for n in names:
        if any(k in n for k in ("EXINT", "WKUP", "IR_OUT")):
            out.append(n)
        else:
            out.append(inst + "_" + n)
    return out


def words(expr):
    """Names an expression refers to, as (name, is_value_test)."""
    for term in expr.split("&"):
        for alt in term.split("|"):
            a = alt.strip()
            if not a:
                continue
            for op in ("!=", "=", ">"):
                if op in a:
                    yield a.split(op)[0].strip(), True
                    break
            else:
                yield a.replace("!", "").strip(), False


def _bilingual(el, en, ch, where, problems):
    a, b = el.get(en), el.get(ch)
    if bool(a) != bool(b):
        problems.append("%s: %s/%s set in one language only" % (where, en, ch))


def run(roots):
    problems = []
    instances = devices.file_stems()
    signals = pins.all_signals()
    iomodes = set(ip_system.GPIO_MODES)
    sems, params = set(), set()
    refs = []  # (where, expression)

    for stem, root in roots.items():
        for inst in instances.get(stem, [stem]):
            sub = lambda t: (t or "").replace("$IpInstance", inst)
            index = re.search(r"[0-9]+$", inst)
            for el in root.iter():
                if el.tag == "Semaphore":
                    sems.add(sub(el.text))
                if el.get("Semaphore"):
                    sems.add(sub(el.get("Semaphore")))
                if el.tag == "RefParameter":
                    params.add(el.get("Name"))
            virt = {n for rs in root.findall("RefSignal")
                    if rs.get("Virtual") == "true"
                    for n in expand(rs.get("Name"), inst)}
            for mode in root.iter("Mode"):
                w = "%s/%s" % (inst, mode.get("Name"))
                _bilingual(mode, "UserName", "UserNameCH", w, problems)
                for c in mode.iter("Condition"):
                    e = sub(c.get("Expression"))
                    if index:
                        e = e.replace("$Index", index.group(0))
                    refs.append((w, e, True))
                    _bilingual(c, "Diagnostic", "DiagnosticCH", w, problems)
                for sig in mode.iter("Signal"):
                    for full in expand(sig.get("Name"), inst):
                        if full in virt or full in VIRTUAL:
                            continue
                        if full not in signals:
                            problems.append("%s: signal %s is on no pin"
                                            % (w, full))
                        if sig.get("IOMode") not in iomodes:
                            problems.append("%s: IOMode %s has no GPIO mode"
                                            % (w, sig.get("IOMode")))
            for p in root.findall("RefParameter"):
                w = "%s/%s" % (inst, p.get("Name"))
                _bilingual(p, "Comment", "CommentCH", w, problems)
                _bilingual(p, "Group", "GroupCH", w, problems)
                if p.get("Type") not in KNOWN_TYPES:
                    problems.append("%s: unknown type %s" % (w, p.get("Type")))
                c = p.find("Condition")
                if c is not None:
                    refs.append((w, sub(c.get("Expression")), False))
                vals = [v.get("Value") for v in p.findall("PossibleValue")]
                all_inst = {i for v in instances.values() for i in v}
                for v in p.findall("PossibleValue"):
                    _bilingual(v, "Comment", "CommentCH", w, problems)
                    if p.get("Name") == "IRQn":
                        # the condition of an interrupt lists instances
                        for i in filter(None, (v.get("Condition") or "").split(";")):
                            if i not in all_inst:
                                problems.append("%s: no instance %s" % (w, i))
                    elif v.get("Condition"):
                        refs.append((w, sub(v.get("Condition")), False))
                default = p.get("DefaultValue")
                if vals and default not in vals:
                    problems.append("%s: default %s not a possible value"
                                    % (w, default))
                _check_range(p, w, problems)
    for pin in pins.MUX:
        for func, iomode in pins.functions_of(pin):
            if iomode not in iomodes:
                problems.append("%s/%s: IOMode %s has no GPIO mode"
                                % (pin, func, iomode))
    sems |= {s.split("=")[0] for s in sems if "=" in s}
    for w, e, mode_level in refs:
        for name, valued in words(e):
            if name.isdigit():
                continue
            known = name in sems or (valued and name in params)
            if not known:
                problems.append("%s: expression names unknown %s" % (w, name))
    if "NVIC" in roots:
        for p in roots["NVIC"].findall("RefParameter"):
            if p.get("Name") == "IRQn":
                for v in p.findall("PossibleValue"):
                    if not IRQ_RE.match(v.get("Value")):
                        problems.append("NVIC: bad IRQn line " + v.get("Value"))
    return problems


def _num(text, hexa):
    try:
        return int(text, 16) if hexa else float(text)
    except (TypeError, ValueError):
        return None


def _check_range(p, w, problems):
    t = p.get("Type")
    if t not in ("integer", "hexadecimal", "double"):
        return
    hexa = t == "hexadecimal"
    d = p.get("DefaultValue")
    if "*" in (d or "") or (p.get("Min") or "").startswith("/"):
        return
    val = _num(d, hexa)
    lo, hi = _num(p.get("Min"), hexa), _num(p.get("Max"), hexa)
    if val is None:
        if d:
            problems.append("%s: default %s is not a number" % (w, d))
        return
    if lo is not None and val < lo or hi is not None and val > hi:
        problems.append("%s: default %s outside %s..%s"
                        % (w, d, p.get("Min"), p.get("Max")))
