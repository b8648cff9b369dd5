"""Writes docs/firmware-macros.md: the firmware macro names of every family, taken from the
generated peripheral files themselves, so that the list always matches them."""
import re

MACRO = re.compile(r"^[A-Z][A-Z0-9_]*_[A-Z0-9_]+$")
SWITCHES = ("TRUE", "FALSE", "ENABLE", "DISABLE")

HEAD = """# Firmware macro names

The values that the device database stores and the generated C code writes are the macro
names of the firmware library. This list is the one place where they are decided; the C
templates of every family and the firmware headers follow it. It is written by
`tools/dbgen/mq48/gen_database.py` from the generated peripheral files, so it always matches
them.

## Style

- Upper case, words joined by "_", the module first: `USART_DATA_8BITS`, `TMR_COUNT_UP`.
  The generator's check refuses an upper-case value that doesn't start with the module of
  its file.
- Numbered things carry the number last: `GPIO_PINS_9`, `GPIO_MUX_5`, `EXINT_LINE_11`,
  `ADC_CHANNEL_16`, `DMA1_Channel3`, `EDMA_Stream2` (channels are the mixed-case form).
- Switches are `TRUE`/`FALSE` (firmware `confirm_state`) or `ENABLE`/`DISABLE`
  where the generated code tests the word; each parameter below says which.
- Pin macros: port `GPIOA`, pin `GPIO_PINS_9`, source `GPIO_PINS_SOURCE9`, mux
  `GPIO_MUX_0` to `GPIO_MUX_15`, SCFG port `SCFG_PORT_SOURCE_GPIOA`, SCFG pin
  `SCFG_PINS_SOURCE9`, EXINT line `EXINT_LINE_9`.
- Some values are settings of the panels rather than macros (`I2C_Standard`,
  `PWM_Input_1`, `Overflow_From_COS`, `NONE`, `INPUT`); the generated code tests them and
  never writes them. They are listed too and marked "(setting)".
- A parameter or value that only some families have names them in brackets, without the
  "MQ48" of the series name: `RS485` *(T110, T120)*.

## Rules the templates follow beyond the values

- Remap families (T230, T250, T260, V250, T310, T320, W320) have no per-pin multiplexer:
  the device file's `PinsSignalsGroup` lists, per instance, group 0 (the default pins,
  `GMUX` empty: no remap call) and groups 1, 2, ... with `GMUX` `<INSTANCE>_GMUX_<nn>`
  (`USART1_GMUX_01`), the argument of `gpio_pin_remap_config(<GMUX>, TRUE)`. Their GPIO
  file gives `GPIO_PORT_SOURCE_GPIOx` and `GPIO_PINS_SOURCEn` in the SCFG fields, for
  `gpio_exint_line_config`.
- DMA `RequestSelect`: on the flexible families (T120, T320, W320) the request name, written
  as `FLEX_<name>` (`FLEX_USART1_TX`); on the DMAMUX families (T130, V130, T210, T220, T510,
  T520) `DMAMUX_DMAREQ_ID_<name>`; on EDMA `EDMAMUX_DMAREQ_ID_<name>`. Generator requests are
  `DMA1_GENERATOR`, `DMA2_GENERATOR`, `EDMA_GENERATOR` with `<mux>_DMAREQ_ID_REQ_G1`.
  Requests `<I2S>_EXT_TX`/`_RX` use the register block `I2S2EXT`/`I2S3EXT`.
- CAN `BaudRate_Division`, `BTS1`, `BTS2` and `RSAW` hold numbers; the template writes
  `CAN_BTS1_<n>TQ`, `CAN_BTS2_<n>TQ`, `CAN_RSAW_<n>TQ` and the prefix as it stands.
- ADC on T510/T520: `ClockPrescaler` (`ADC_HCLK_DIV_n`) stands in ADC1, where the clock
  calculator reads it; `adc_common_struct.div` takes ADC1's value (the ADC-Common panel
  receives ADC1's parameter list). `TemperatureVINTRV` stands in ADC-Common there and in
  ADC1 elsewhere. The combined mode `Mode` stands in ADC1 on the dual families (T230, T250,
  T260, V250, T310) and in ADC-Common on T510/T520 (`ADC_DUAL_...`, `ADC_TRIPLE_...`).
- XMC `LCD_RS_line` names the address line (`A16`); the LCD data address is the bank base
  with that line set.
- The ERTC and RTC interrupts, the EXINT lines and the NVIC table: see the vector names
  `<X>_IRQn` and handlers `<X>_IRQHandler` of each family's NVIC file.
"""


def short(series):
    return series[len("MQ48"):] if series.startswith("MQ48") else series


def shown(value):
    if MACRO.match(value) or value in SWITCHES:
        return "`%s`" % value
    if value.isdigit():
        return None
    return "`%s` (setting)" % value


def _families(names, everyone):
    if set(names) >= set(everyone):
        return ""
    return " *(%s)*" % ", ".join(short(n) for n in names)


# Parameters whose values are not listed one by one.
PATTERNS = {
    "IRQn": "vector table: `<X>_IRQn` with handler `<X>_IRQHandler` (see the NVIC file)",
    "Instance": "the channels of the controller: `DMA1_Channel1` ..., `EDMA_Stream1` ...",
    "RequestSelect": "request lines, see the rules above",
}


# Module switch of `<stem>_conf.h` kept on by an instance of each kind (CRM, PWC, FLASH and
# MISC are never touched).
MODULES = [("ACC", "ACC"), ("ADC", "ADC"), ("CAN", "CAN"), ("CMP", "CMP"), ("CRC", "CRC"),
           ("DAC", "DAC"), ("DEBUG", "DEBUG"), ("DMA", "DMA"), ("DVP", "DVP"),
           ("EDMA", "EDMA"), ("EMAC", "EMAC"), ("ERTC", "ERTC"), ("EXINT", "EXINT"),
           ("GPIO", "GPIO"), ("I2C", "I2C"), ("QSPI", "QSPI"), ("RTC", "RTC"),
           ("SCFG", "SCFG"), ("SDIO", "SDIO"), ("SPI", "SPI"), ("I2S", "SPI"),
           ("TMR", "TMR"), ("USART", "USART"), ("UART", "USART"), ("USB", "USB"),
           ("WDT", "WDT"), ("WWDT", "WWDT"), ("XMC", "XMC")]


def module_of(inst):
    if inst == "IRTMR":
        return "SCFG"
    if inst == "SPIM":
        return None  # served by the FLASH driver
    for head, module in sorted(MODULES, key=lambda m: -len(m[0])):
        if inst.startswith(head):
            return module
    return None


def module_table(families):
    out = ["\n## Module switches\n\nThe `<MODULE>_MODULE_ENABLED` switches of `<stem>_conf.h`"
           " and the driver files `<stem>_<module>` that each series' instances keep on "
           "(EXINT also keeps SCFG on where the series has it).\n\n| Series | Modules |"
           "\n|---|---|"]
    for fam, _ in families:
        mods = {}
        for inst in fam.instances():
            m = module_of(inst)
            if m:
                mods.setdefault(m, []).append(inst)
        out.append("| %s | %s |" % (fam.name, ", ".join(
            "`%s` (%s)" % (m, ", ".join(i)) for m, i in sorted(mods.items()))))
    return out


def text(families):
    """The document for [(family, {stem: root})]."""
    stems = {}   # stem -> {"families": [...], "instances": [...], "params": {...}}
    order = []
    for fam, roots in families:
        for _, inst, stem, _, _ in fam.peripheral_rows():
            if stem not in roots:
                continue
            entry = stems.get(stem)
            if entry is None:
                entry = stems[stem] = {"families": [], "instances": [], "params": {}}
                order.append(stem)
            if fam.name not in entry["families"]:
                entry["families"].append(fam.name)
                for p in roots[stem].findall("RefParameter"):
                    rec = entry["params"].setdefault(p.get("Name"),
                                                     {"families": [], "values": {}})
                    rec["families"].append(fam.name)
                    for v in p.findall("PossibleValue"):
                        if v.get("Value"):
                            rec["values"].setdefault(v.get("Value"), []).append(fam.name)
            if inst not in entry["instances"]:
                entry["instances"].append(inst)
    out = [HEAD, "\n## Families\n\n| Series | Files | Instances |\n|---|---|---|"]
    for fam, roots in families:
        out.append("| %s | %d | %d |" % (fam.name, len(roots), len(fam.instances())))
    out += module_table(families)
    for stem in order:
        entry = stems[stem]
        lines = []
        for name, rec in entry["params"].items():
            head = "| `%s`%s | " % (name, _families(rec["families"], entry["families"]))
            if name in PATTERNS:
                lines.append(head + PATTERNS[name] + " |")
                continue
            cells = []
            for value, fams in rec["values"].items():
                s = shown(value)
                if s:
                    cells.append(s + _families(fams, rec["families"]))
            if cells:
                lines.append(head + ", ".join(cells) + " |")
        if not lines:
            continue
        insts = entry["instances"]
        out.append("\n## %s\n\n%s; instances %s.\n\n| Parameter | Values |\n|---|---|"
                   % (stem, ", ".join(short(f) for f in entry["families"]),
                      ", ".join(insts if len(insts) <= 12 else insts[:12] + ["..."])))
        out.extend(lines)
    out.append("")
    return "\n".join(out)
