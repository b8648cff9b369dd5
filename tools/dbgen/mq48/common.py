"""Parameter shorthands shared by the peripheral tables."""
from model import P, V

BASIC = ("Basic Parameters", "基本参数")
ADV = ("Advanced Parameters", "高级参数")
EN_DIS = [("ENABLE", "Enable", "使能"), ("DISABLE", "Disable", "禁止")]
TF = [("TRUE", "Enable", "使能"), ("FALSE", "Disable", "禁止")]


def L(name, text, group, default, values, expr=None, desc=None, **kw):
    """A list parameter; ``values`` are (value, en, ch[, sem[, cond]])."""
    vs = []
    for v in values:
        value, en, ch = v[0], v[1], v[2]
        sem = v[3] if len(v) > 3 else None
        cond = v[4] if len(v) > 4 else None
        vs.append(V(value, (en, ch), sem=sem, cond=cond))
    return P(name, text, group, "list", default, vs, expr=expr, desc=desc, **kw)


def B(name, text, group, default="FALSE", expr=None, desc=None, sems=None):
    """TRUE/FALSE switch; ``sems`` = (semaphore when TRUE, when FALSE)."""
    s = sems or (None, None)
    return L(name, text, group, default,
             [("TRUE", "Enable", "使能", s[0]), ("FALSE", "Disable", "禁止", s[1])],
             expr=expr, desc=desc)


def E(name, text, group, default="DISABLE", expr=None, desc=None, sems=None):
    """ENABLE/DISABLE switch."""
    s = sems or (None, None)
    return L(name, text, group, default,
             [("ENABLE", "Enable", "使能", s[0]), ("DISABLE", "Disable", "禁止", s[1])],
             expr=expr, desc=desc)


def I(name, text, group, default, mn, mx, unit=None, expr=None, desc=None):
    return P(name, text, group, "integer", str(default), mn=str(mn),
             mx=str(mx), unit=unit, expr=expr, desc=desc)


def H(name, text, group, default, mx, expr=None, desc=None):
    """Hexadecimal parameter from 0 to ``mx`` (texts without "0x")."""
    return P(name, text, group, "hexadecimal", default, mn="0", mx=mx,
             expr=expr, desc=desc)


def T(name, text, group, default="", expr=None, desc=None):
    """Read-only text filled by a calculator."""
    return P(name, text, group, "string", default, expr=expr, desc=desc,
             enable=False)


def follow(name, text, group, choices, desc=None):
    """A list whose one valid value follows the mode: every choice is
    (value, en, ch, condition); the first is the default."""
    return L(name, text, group, choices[0][0],
             [(v, en, ch, None, cond) for v, en, ch, cond in choices],
             desc=desc)


def none_of(*sems):
    return "&".join("!" + s for s in sems)
