"""Consistency checks of a family's generated files.

They mirror what the readers and evaluators of the program do with the data (signals on
pins, names that expressions read, defaults within their ranges), and check what makes a
family whole: vectors once each, DMA channels that exist and have their vectors, macro
names of the right module, clock limits as the clock tree has them, multiplexer numbers
that don't collide on a pin. A typo in a table so fails the generator instead of a panel.
"""
import os
import re
import xml.etree.ElementTree as ET

import ip_system

KNOWN_TYPES = {"integer", "hexadecimal", "string", "double", "list",
               "string edit", "mac address"}
IRQ_RE = re.compile(r"(\w+),(.+),(.+):(.+),(.+):(.+),(.+):(.+),(\w+)$")
# Virtual signals of the family that stand on no pin as such.
VIRTUAL = {"SCFG_VS_PA11PA12_REMAP"}
# Names that the program raises itself (the clock page, the ADC DMA rule).
PROGRAM_NAMES = {"CRM_USB_CLOCK_SOURCE_HICK", "ADC1_DMA_ENABLE", "ADC1_ADC2_DMA_ENABLE"}


def expand(short, inst):
    """Full signal names of a mode signal element, as the reader builds them."""
    names = [short]
    if "--" in short:
        parts = short.split("--")
        ms = [re.search(r"([A-Z]+)([0-9]+)", p) for p in parts]
        if len(parts) == 2 and all(ms):
            lo, hi = int(ms[0].group(2)), int(ms[1].group(2))
            # the letters next to the first number, as the program's reader takes them
            names = [ms[0].group(1) + str(i) for i in range(lo, hi + 1)]
    out = []
    for n in names:
        if any(k in n for k in ("EXINT", "WKUP", "IR_OUT")):
            out.append(n)
        elif "XMC" in inst:
            out.append("XMC_" + n)
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


def run(fam, roots):
    problems = []
    pins = fam.pins
    instances = fam.file_stems()
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
                removed = set()
                for g in mode.iter("Configuration"):
                    if inst in (g.get("RemoveCondition") or "") or fam.name in (
                            g.get("RemoveCondition") or ""):
                        removed |= {id(s) for s in g.iter("Signal")}
                for sig in mode.iter("Signal"):
                    if id(sig) in removed:
                        continue
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
                if "DMA" in all_inst:
                    all_inst |= {"DMA1", "DMA2"}
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
    for pin in pins.all_io_pins():
        for func, iomode in pins.functions_of(pin):
            if iomode not in iomodes:
                problems.append("%s/%s: IOMode %s has no GPIO mode"
                                % (pin, func, iomode))
    sems |= {s.split("=")[0] for s in sems if "=" in s}
    sems |= PROGRAM_NAMES
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
    problems += check_routes(fam, roots)
    problems += check_interrupts(fam, roots)
    problems += check_dma(fam, roots)
    problems += check_macros(fam, roots)
    problems += check_clock_limits(fam, roots)
    problems += check_pins(fam)
    return problems


# ------------------------------------------------------------- family checks --

def _instance_names(fam, roots):
    """{instance: (raised semaphores, [(where, name)] read by its conditions, params)}."""
    out = {}
    for stem, root in roots.items():
        for inst in fam.file_stems().get(stem, [stem]):
            sub = lambda t: (t or "").replace("$IpInstance", inst)
            index = re.search(r"[0-9]+$", inst)
            raised, reads, params = set(), [], set()
            for el in root.iter():
                if el.tag == "Semaphore":
                    raised.add(sub(el.text))
                if el.get("Semaphore"):
                    raised.add(sub(el.get("Semaphore")).split("=")[0])
                if el.tag == "RefParameter":
                    params.add(el.get("Name"))
            for mode in root.iter("Mode"):
                gone = set()
                for g in mode.iter("Configuration"):
                    if inst in sub(g.get("RemoveCondition")).split():
                        gone |= {id(c) for c in g.iter("Condition")}
                for cond in mode.iter("Condition"):
                    if id(cond) in gone:
                        continue
                    e = sub(cond.get("Expression"))
                    if index:
                        e = e.replace("$Index", index.group(0))
                    reads += [(mode.get("Name"), n) for n, _ in words(e)]
            for p in root.findall("RefParameter"):
                if p.get("Name") == "IRQn":
                    continue
                cond = p.find("Condition")
                texts = [cond.get("Expression")] if cond is not None else []
                texts += [v.get("Condition") for v in p.findall("PossibleValue")]
                for t in filter(None, texts):
                    reads += [(p.get("Name"), n) for n, _ in words(sub(t))]
            out[inst] = (raised, reads, params)
    return out


def check_routes(fam, roots):
    """A condition that reads another instance's semaphore needs a routed pair from that
    instance: the work form passes semaphores along the series' pairs only."""
    problems = []
    routes = fam.fact("routes", {})
    names = _instance_names(fam, roots)
    for inst, (_, reads, params) in names.items():
        for where, name in reads:
            if name.isdigit() or name in PROGRAM_NAMES or name in params:
                continue
            owners = [o for o, (raised, _, _) in names.items() if name in raised]
            if not owners or inst in owners:
                continue
            if not any(inst in routes.get(o, ()) for o in owners):
                problems.append("%s/%s: %s of %s never reaches %s" % (
                    inst, where, name, "/".join(owners), inst))
    return problems


def _irq_rows(roots):
    for p in roots.get("NVIC", ET.Element("IP")).findall("RefParameter"):
        if p.get("Name") == "IRQn":
            for v in p.findall("PossibleValue"):
                m = IRQ_RE.match(v.get("Value"))
                if m:
                    yield m.group(1), m.group(9), v.get("Condition") or ""


def check_interrupts(fam, roots):
    """Vector names and handlers once each (a vector's number is its place), and every
    condition an instance of the series."""
    problems = []
    instances = set(fam.instances())
    if "DMA" in instances:
        instances |= {"DMA1", "DMA2"}
    names, handlers = set(), set()
    for name, handler, cond in _irq_rows(roots):
        if name in names:
            problems.append("NVIC: vector %s stands twice" % name)
        if handler in handlers:
            problems.append("NVIC: handler %s stands twice" % handler)
        names.add(name)
        handlers.add(handler)
        for inst in filter(None, cond.split(";")):
            if inst not in instances:
                problems.append("NVIC: %s names no instance %s" % (name, inst))
    return problems


def _channel_vector(channel, vectors):
    """Whether a vector serves a channel ("DMA1_Channel3" by "DMA1_Channel3_2")."""
    ctrl, num = re.match(r"(.*?)(\d+)$", channel).groups()
    for v in vectors:
        if v.startswith(ctrl) and num in v[len(ctrl):].replace("_IRQn", "").split("_"):
            return True
    return False


def check_dma(fam, roots):
    """Requests name channels that exist; every channel has its interrupt vector."""
    problems = []
    vectors = [name for name, _, _ in _irq_rows(roots)]
    for stem, channels in (("DMA", fam.fact("DMA_CHANNELS")),
                           ("EDMA", fam.fact("EDMA_CHANNELS"))):
        if stem not in roots:
            continue
        for rm in roots[stem].findall("RefMode"):
            for par in rm.findall("Parameter"):
                if par.get("Name") != "Instance":
                    continue
                for v in par.findall("PossibleValue"):
                    if v.text not in channels:
                        problems.append("%s: request %s names channel %s that the series "
                                        "lacks" % (stem, rm.get("Name"), v.text))
        for ch in channels:
            if not _channel_vector(ch, vectors):
                problems.append("%s: channel %s has no interrupt vector" % (stem, ch))
    return problems


# Module prefixes of the macro values of each kind of file (by stem, without digits).
MACRO_PREFIXES = {
    "USART": ("USART_", "MODE_", "VM_"), "UART": ("USART_", "MODE_", "VM_"),
    "SPI": ("SPI_",), "I2S": ("I2S_",), "I2SF": ("I2S_", "I2SF_"), "I2C": ("I2C_",),
    "CAN": ("CAN_",), "ADC": ("ADC_", "ADC12_", "ADC3_"), "ADC-Common": ("ADC_",),
    "DAC": ("DAC_",), "CMP": ("CMP_",), "TMR": ("TMR",), "ERTC": ("ERTC_",),
    "RTC": ("RTC_",), "CRC": ("CRC_",), "WDT": ("WDT_",), "WWDT": ("WWDT_",),
    "PWC": ("PWC_",), "EXINT": ("EXINT_",), "GPIO": ("GPIO_",), "NVIC": ("NVIC_",),
    "DMA": ("DMA_", "DMAMUX_"), "EDMA": ("EDMA_", "EDMAMUX_"), "SDIO": ("SDIO_",),
    "QSPI": ("QSPI_",), "SPIM": ("FLASH_SPIM_",), "XMC": ("XMC_",), "EMAC": ("EMAC_",),
    "DVP": ("DVP_",), "ACC": ("ACC_",),
}
WORDS = {"TRUE", "FALSE", "ENABLE", "DISABLE", "NONE", "INPUT", "OUTPUT", "ENCODER"}
# Parameters whose values are names of another kind: channels, request lines, the
# interrupt table, address lines.
NOT_MACROS = {"Instance", "RequestSelect", "IRQn", "LCD_RS_line"}


def _kind(stem):
    if stem.startswith("XMC"):
        return "XMC"
    if stem.startswith("TMR"):
        return "TMR"
    if stem.startswith("ADC") and stem != "ADC-Common":
        return "ADC"
    return re.sub(r"\d+$", "", stem)


def check_macros(fam, roots):
    """Values in upper case are firmware macros and start with the module of their file;
    mixed-case values are panel settings the generated code only tests."""
    problems = []
    for stem, root in roots.items():
        prefixes = MACRO_PREFIXES.get(_kind(stem))
        if not prefixes:
            continue
        for p in root.findall("RefParameter"):
            if p.get("Name") in NOT_MACROS:
                continue
            for v in p.findall("PossibleValue"):
                value = v.get("Value") or ""
                if not value or value != value.upper() or value in WORDS or value.isdigit():
                    continue
                if not re.fullmatch(r"[A-Z][A-Z0-9_]*", value):
                    problems.append("%s/%s: value %s is no macro name"
                                    % (stem, p.get("Name"), value))
                elif not value.startswith(prefixes):
                    problems.append("%s/%s: macro %s is not of module %s"
                                    % (stem, p.get("Name"), value, "/".join(prefixes)))
    return problems


CLOCK_SOURCE = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "..",
                            "clock", "clockfamilies.cpp")


def clock_table(path=CLOCK_SOURCE):
    """{series: (sclk max, APB1 max, APB2 max)} from the clock tree's family table."""
    with open(path, encoding="utf-8") as f:
        text = f.read()
    out = {}
    for block in re.findall(r"\{ClockModel::\w+,(.*?)\{[\d.]", text, re.S):
        fields = [x.strip() for x in block.split(",") if x.strip()]
        series = fields[1].strip('"')
        # name, series, save series, tree class, picture, sclkMax, halfBus, msnsOnly,
        # vcoMax, apb1Max, apb2Max, ...
        out[series] = (float(fields[5]), float(fields[9]), float(fields[10]))
    return out


def check_clock_limits(fam, roots, table=None):
    """The family table's clock limits are the clock tree's, and the SPI clock limit
    lies within half the fastest APB bus."""
    problems = []
    limits = fam.fact("clock")
    if not limits:
        return problems
    table = table if table is not None else clock_table()
    tree = table.get(fam.name)
    if tree is None:
        return ["clock: the clock tree's table has no row for the series"]
    if tuple(float(x) for x in limits) != tree:
        problems.append("clock: limits %s differ from the clock tree's %s"
                        % (tuple(limits), tree))
    for p in roots.get("SPI", ET.Element("IP")).findall("RefParameter"):
        if p.get("Name") == "ClockFrequency":
            if float(p.get("DefaultValue")) > max(tree[1:]) * 1e6 / 2:
                problems.append("SPI: SCK limit %s above half the APB clock"
                                % p.get("DefaultValue"))
    return problems


def check_pins(fam):
    """Per-pin multiplexer numbers: two instances never share one on a pin (an SPI and the
    I2S of its block excepted); remap groups name pins of the series."""
    problems = []
    pins = fam.pins
    for pin in pins.all_io_pins():
        seen = {}
        for sig, mux in pins.mux_of(pin):
            if sig == "EVENTOUT":
                continue
            owner = _owner(sig)
            other = seen.setdefault(mux, owner)
            if other != owner:
                problems.append("%s: GPIO_MUX_%d serves %s and %s" % (pin, mux, other, owner))
    names = set(pins.all_io_pins())
    for ip, num, gmux, members in (pins.groups() if hasattr(pins, "groups") else ()):
        for sig, pin in members:
            if pin not in names:
                problems.append("group %s %d: pin %s of %s is on no package"
                                % (ip, num, pin, sig))
    return problems


def _owner(sig):
    head = sig.split("_", 1)[0]
    if head.startswith("USB"):
        head = "_".join(sig.split("_", 2)[:2])
    return re.sub(r"^I2S(\d)", r"SPI\1", head)


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
