"""Writes docs/firmware-macros.md: the firmware macro names of the T110
database, taken from the generated peripheral files themselves."""
import re

import devices

MACRO = re.compile(r"^[A-Z][A-Z0-9_]*_[A-Z0-9_]+$")

HEAD = """# Firmware macro names

The values that the device database stores and the generated C code writes are the macro
names of the firmware library. This list is the one place where they are decided; the C
templates and the firmware headers follow it. It is written by
`tools/dbgen/t110/gen_t110.py` from the MQ48T110 peripheral files, so it always matches
them; other families use the same names where they have the same thing.

## Style

- Upper case, words joined by "_", the module first: `USART_DATA_8BITS`, `TMR_COUNT_UP`.
- Numbered things carry the number last: `GPIO_PINS_9`, `GPIO_MUX_5`, `EXINT_LINE_11`,
  `ADC_CHANNEL_16`, `DMA1_Channel3` (the one mixed-case form, a channel name).
- Switches are `TRUE`/`FALSE` (firmware `confirm_state`) or `ENABLE`/`DISABLE`
  where the generated code tests the word; each parameter below says which.
- Pin macros: port `GPIOA`, pin `GPIO_PINS_9`, source `GPIO_PINS_SOURCE9`, mux
  `GPIO_MUX_0` to `GPIO_MUX_7`, SCFG port `SCFG_PORT_SOURCE_GPIOA`, SCFG pin
  `SCFG_PINS_SOURCE9`, EXINT line `EXINT_LINE_9`.
- Some values are settings of the panels rather than macros (`I2C_Standard`,
  `PWM_Input_1`, `Overflow_From_COS`, `NONE`, `INPUT`); the generated code tests them and
  never writes them. They are listed too and marked "(setting)".
"""


def write(roots, path):
    out = [HEAD]
    seen = set()
    for group, inst, stem, _, _ in devices.peripheral_rows():
        if stem in seen or stem not in roots:
            continue
        seen.add(stem)
        root = roots[stem]
        lines = []
        for p in root.findall("RefParameter"):
            if p.get("Name") == "IRQn":
                lines.append("| `IRQn` | vector table: `<X>_IRQn` with handler "
                             "`<X>_IRQHandler` (see the NVIC file) |")
                continue
            vals = [v.get("Value") for v in p.findall("PossibleValue")]
            vals = [v for v in vals if v]
            if not vals:
                continue
            shown = []
            for v in vals:
                if MACRO.match(v) or v in ("TRUE", "FALSE", "ENABLE", "DISABLE"):
                    shown.append("`%s`" % v)
                elif not v.isdigit():
                    shown.append("`%s` (setting)" % v)
            if shown:
                lines.append("| `%s` | %s |" % (p.get("Name"), ", ".join(
                    dict.fromkeys(shown))))
        if lines:
            out.append("\n## %s (%s)\n\n| Parameter | Values |\n|---|---|"
                       % (stem, ", ".join(devices.file_stems()[stem])))
            out.extend(lines)
    out.append("")
    with open(path, "w", encoding="utf-8", newline="\n") as f:
        f.write("\n".join(out))
