"""The series other than MQ48T110: one row each, from which their tables are built.

Instances follow the blocks of the family code generators; `expand` reads "TMR1..14".
Keys of a row (all optional unless said):

    inst       instances besides the common ones (required)
    remap      pins move by remap groups (no per-pin multiplexer, no SCFG)
    osc        port of the HEXT crystal pins: "PH", "PF", or "PD" (PD0/PD1 or dedicated)
    clkout     {signal: ["pin:mux", ...]} of the clock outputs
    clock      (sclk max, APB1 max, APB2 max) in MHz, as the clock tree's table has them
    debug      "check" (one SWD box) or "combo" (SWD, SWO, JTAG)
    dma        channels per DMA controller; dma_style "fixed", "flexible" or "dmamux"
    edma       EDMA streams (with EDMAMUX)
    wkup       wake-up pin numbers
    gen        "new" for the second generation of USART, I2C, ADC, CRC; "old" otherwise
    scfg       SCFG rows: "remap" (PA11 PA12), "ultra:PB8 ...", "i2sfd" (I2S full duplex
               by pairs), "locks"
    ir         (carrier timer, envelope timer, "pair" or "irtmr"): how the infrared timer
               learns of its sources
    xmc        XMC memories: subset of NOR, NAND, PCCARD, SDRAM
    aliases    {UARTn: USARTn} where the map's UART is a USART here
"""
import os
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..",
                                "catalogue"))
import series as catalogue  # noqa: E402

BIG = ("USART1..3 UART4 UART5 USART6 UART7 UART8 SPI1..4 I2S1..4 I2C1..3 ADC1..3 DAC "
       "CAN1 CAN2 SDIO1 SDIO2 TMR1..14 WWDT ACC")
T510_XMC = ("XMC_NORFlash-PSRAM-SRAM-ROM-LCD_1..4 XMC_NANDFlash_1 XMC_NANDFlash_2 "
            "XMC_PCCard XMC_SDRAM_1 XMC_SDRAM_2")
T250_XMC = "XMC_NORFlash-PSRAM-LCD_1 XMC_NORFlash-PSRAM-LCD_4 XMC_NANDFlash"
T130 = ("USART1..8 SPI1..3 I2S1..3 I2C1..3 ADC1 DAC CAN1 CAN2 USB_OTGFS1 TMR1..4 TMR6 TMR7 "
        "TMR9..14 ERTC WWDT IRTMR ACC")
T210 = ("USART1..6 UART7 UART8 SPI1..3 I2S1..3 I2SF5 I2C1..3 ADC1 CAN1 USB_OTGFS1 QSPI1 "
        "TMR1..4 TMR6 TMR7 TMR9..11 TMR13 TMR14 ERTC WWDT IRTMR ACC")
OLD_T2 = dict(remap=True, osc="PD", clkout={"CRM_CLKOUT": ["PA8:0"]}, debug="combo",
              dma=(7, 7), dma_style="fixed", wkup=(1,), gen="old", rtc="RTC",
              adc_dual=True, spi_sck=36)

FAMILIES = {
    "MQ48T510": dict(inst=BIG + " USB_OTGFS1 USB_OTGFS2 QSPI1 QSPI2 DVP TMR20 ADC-Common "
                     "ERTC IRTMR " + T510_XMC, osc="PH", clock=(288, 144, 144),
                     clkout={"CRM_CLKOUT1": ["PA8:0", "PE4:0"], "CRM_CLKOUT2": ["PC9:0"]},
                     debug="combo", dma=(7, 7), dma_style="dmamux", edma=8,
                     wkup=(1, 2, 4, 5, 6, 7), gen="new", rtc="ERTC", tamper2=True,
                     scfg="ultra:PF15,PF14,PD15,PD14,PD13,PD12,PB10,PB9,PB3 locks",
                     ir=("TMR10", "TMR11", "irtmr"), xmc={"NOR", "NAND", "PCCARD", "SDRAM"},
                     i2s_ext=True, adc_common=True, spi_sck=72),
    "MQ48T520": dict(inst=BIG + " USB_OTGFS1 USB_OTGFS2 QSPI1 QSPI2 DVP TMR20 ADC-Common "
                     "ERTC IRTMR EMAC " + T510_XMC, osc="PH", clock=(288, 144, 144),
                     clkout={"CRM_CLKOUT1": ["PA8:0", "PE4:0"], "CRM_CLKOUT2": ["PC9:0"]},
                     debug="combo", dma=(7, 7), dma_style="dmamux", edma=8,
                     wkup=(1, 2, 4, 5, 6, 7), gen="new", rtc="ERTC", tamper2=True,
                     scfg="ultra:PF15,PF14,PD15,PD14,PD13,PD12,PB10,PB9,PB3 locks",
                     ir=("TMR10", "TMR11", "irtmr"), xmc={"NOR", "NAND", "PCCARD", "SDRAM"},
                     i2s_ext=True, adc_common=True, spi_sck=72),
    "MQ48T250": dict(OLD_T2, inst=BIG + " USBFS SPIM RTC " + T250_XMC, clock=(240, 120, 120),
                     can=(500, "80", "FALSE", "1"),
                     xmc={"NOR", "NAND"}),
    "MQ48V250": dict(OLD_T2, inst=BIG + " USBFS SPIM RTC EMAC " + T250_XMC,
                     can=(250, "80", "FALSE", "1"),
                     clock=(200, 100, 100), xmc={"NOR", "NAND"}),
    "MQ48T260": dict(OLD_T2, inst=BIG + " USBFS SPIM RTC EMAC " + T250_XMC,
                     can=(500, "80", "FALSE", "1"),
                     clock=(240, 120, 120), xmc={"NOR", "NAND"}),
    "MQ48T120": dict(inst="USART1..4 SPI1..3 I2S1..3 I2C1 I2C2 ADC1 CAN1 USB_OTGFS1 TMR1..3 "
                     "TMR6 TMR7 TMR13..17 ERTC WWDT IRTMR ACC", osc="PF", clock=(96, 96, 96),
                     can=(500, "80", "FALSE", "1"),
                     clkout={"CRM_CLKOUT": ["PA8:0", "PA9:5", "PB13:3"]}, debug="check",
                     dma=(7,), dma_style="flexible", wkup=(1, 2, 4, 6, 7), gen="new",
                     rtc="ERTC", scfg="remap ultra:PB13,PB14,PB8,PB9 i2sfd locks",
                     ir=("TMR16", "TMR17", "pair"), aliases={"UART4": "USART4"},
                     remap_tssop=True, small_adc=True, spi_sck=36),
    "MQ48T320": dict(inst="USART1..3 UART4 UART5 SPI1 SPI2 I2S1 I2S2 I2C1 I2C2 ADC1 CMP1 CMP2 "
                     "CAN1 USB_OTGFS1 SDIO1 TMR1..5 TMR9..11 ERTC WWDT", remap=True, osc="PD",
                     clock=(150, 75, 75), clkout={"CRM_CLKOUT": ["PA8:0"]}, debug="combo",
                     dma=(7, 7), dma_style="flexible", wkup=(1, 2), gen="old", rtc="ERTC",
                     spi_sck=36),
    "MQ48W320": dict(inst="USART1 USART2 UART5 SPI2 I2C1 ADC1 CMP1 CMP2 CAN1 USB_OTGFS1 "
                     "TMR1..5 TMR9..11 ERTC WWDT", remap=True, osc="PD", clock=(150, 75, 75),
                     clkout={"CRM_CLKOUT": ["PA8:0"]}, debug="combo", dma=(7,),
                     dma_style="flexible", wkup=(1, 2), gen="old", rtc="ERTC", spi_sck=36),
    "MQ48T310": dict(OLD_T2, inst="USART1..3 UART4 UART5 SPI1 SPI2 I2S1 I2S2 I2C1 I2C2 ADC1 "
                     "ADC2 CAN1 CAN2 USBFS SDIO1 SPIM TMR1..5 TMR8..11 RTC WWDT ACC",
                     can=(250, "80", "FALSE", "1"),
                     clock=(200, 100, 100)),
    "MQ48T230": dict(OLD_T2, inst="USART1..3 UART4 UART5 SPI1..3 I2S1..3 I2C1 I2C2 ADC1 ADC2 "
                     "DAC CAN1 USBFS SDIO1 TMR1..10 RTC WWDT", clock=(200, 100, 100),
                     can=(250, "80", "FALSE", "1"),
                     dma=(7, 5)),
    "MQ48T050": dict(inst="USART1 USART2 SPI1 I2C1 ADC1 CMP1 TMR1 TMR3 TMR14..17 ERTC WWDT",
                     osc="PF", clock=(96, 96, 96),
                     clkout={"CRM_CLKOUT": ["PA8:0", "PB13:3"]}, debug="check", dma=(5,),
                     dma_style="fixed", wkup=(1, 2, 4, 6, 7), gen="old", rtc="ERTC",
                     scfg="locks", small_adc=True, spi_sck=24),
    "MQ48T130": dict(inst=T130 + " XMC_NORFlash-PSRAM-LCD_1 XMC_NORFlash-PSRAM-LCD_2 "
                     "XMC_NORFlash-PSRAM-LCD_4", osc="PH", clock=(150, 120, 150),
                     can=(125, "87.5", "TRUE", "0.5"),
                     clkout={"CRM_CLKOUT": ["PA8:0", "PC9:0"]}, debug="combo", dma=(7, 7),
                     dma_style="dmamux", wkup=(1, 2, 4, 5, 6, 7), gen="new", rtc="ERTC",
                     scfg="ultra:PD13,PD12,PB8,PB9 locks", ir=("TMR10", "TMR11", "pair"),
                     xmc={"NOR"}, i2s_ext=True, spi_sck=50,
                     aliases={"UART4": "USART4", "UART5": "USART5", "UART7": "USART7",
                              "UART8": "USART8"}),
    "MQ48V130": dict(inst=T130, osc="PH", clock=(150, 120, 150),
                     can=(125, "87.5", "TRUE", "0.5"),
                     clkout={"CRM_CLKOUT": ["PA8:0", "PC9:0"]}, debug="combo", dma=(7, 7),
                     dma_style="dmamux", wkup=(1, 2, 4, 5, 6, 7), gen="new", rtc="ERTC",
                     scfg="ultra:PD13,PD12,PB8,PB9 locks", ir=("TMR10", "TMR11", "pair"),
                     i2s_ext=True, spi_sck=50,
                     aliases={"UART4": "USART4", "UART5": "USART5", "UART7": "USART7",
                              "UART8": "USART8"}),
    "MQ48T220": dict(inst=T210 + " USB_OTGHS1", osc="PH", clock=(216, 120, 216),
                     clkout={"CRM_CLKOUT": ["PA8:0", "PC9:0"]}, debug="check", dma=(7, 7),
                     dma_style="dmamux", wkup=(1, 2, 4, 5, 6, 7), gen="new", rtc="ERTC",
                     scfg="ultra:PB3,PB10,PB9 i2sfd locks", ir=("TMR10", "TMR11", "irtmr"),
                     aliases={"UART4": "USART4", "UART5": "USART5"}, spi_sck=50),
    "MQ48T210": dict(inst=T210, osc="PH", clock=(216, 120, 216),
                     clkout={"CRM_CLKOUT": ["PA8:0", "PC9:0"]}, debug="check", dma=(7, 7),
                     dma_style="dmamux", wkup=(1, 2, 4, 5, 6, 7), gen="new", rtc="ERTC",
                     scfg="ultra:PB3,PB10,PB9 i2sfd locks", ir=("TMR10", "TMR11", "irtmr"),
                     aliases={"UART4": "USART4", "UART5": "USART5"}, spi_sck=50),
}

COMMON = ["CRM", "DEBUG", "GPIO", "NVIC", "EXINT", "PWC", "CRC", "WDT", "DMA"]


def _pairs(n):
    out = {}
    for i in range(1, n + 1):
        out["I2S%d" % i] = ["SPI%d" % i]
        out["SPI%d" % i] = ["I2S%d" % i]
    return out


# The instances a semaphore of one instance reaches, by series: the work form passes them
# along these pairs only. A condition that reads another instance's semaphore needs a pair.
ROUTES = {
    "MQ48T510": dict(_pairs(4), TMR10=["IRTMR"], TMR11=["IRTMR"], SCFG=["I2S2", "I2S3"],
                     ADC1=["ADC-Common"], EXINT=["ADC1", "ADC2", "ADC3", "DAC"],
                     USB_OTGFS1=["ACC"], USB_OTGFS2=["ACC"],
                     **{"ADC-Common": ["ADC1", "ADC2", "ADC3"]}),
    "MQ48T220": dict(_pairs(3), TMR10=["IRTMR"], TMR11=["IRTMR"], SCFG=["I2S2", "I2S3"],
                     EXINT=["ADC1"], USB_OTGFS1=["ACC"]),
    "MQ48T320": dict(_pairs(2), EXINT=["ADC1"], CMP1=["CMP2"]),
    "MQ48T310": dict(_pairs(2), EXINT=["ADC1", "ADC2"], USBFS=["ACC"]),
    "MQ48T250": dict(_pairs(4), ADC2=["ADC1"], EXINT=["ADC1", "ADC2", "DAC"], USBFS=["ACC"]),
    "MQ48T120": dict(_pairs(3), TMR16=["TMR17"], SCFG=["I2S2", "I2S3"], EXINT=["ADC1"],
                     USB_OTGFS1=["ACC"]),
    "MQ48T130": dict(_pairs(3), TMR10=["TMR11"], SCFG=["I2S2", "I2S3"],
                     EXINT=["ADC1", "DAC"], USB_OTGFS1=["ACC"]),
    "MQ48T110": dict(_pairs(2), TMR16=["TMR17"], EXINT=["ADC1"]),
}
for _a, _b in (("MQ48T520", "MQ48T510"), ("MQ48T210", "MQ48T220"),
               ("MQ48W320", "MQ48T320"), ("MQ48T260", "MQ48T250"),
               ("MQ48V250", "MQ48T250"), ("MQ48V130", "MQ48T130")):
    ROUTES[_a] = ROUTES[_b]


def routes(name):
    return ROUTES.get(name, {})


def expand(text):
    out = []
    for tok in text.split():
        if ".." in tok:  # TMR1..14, XMC_..._1..4
            head, last = tok.split("..")
            stem = head.rstrip("0123456789")
            out += ["%s%d" % (stem, i) for i in range(int(head[len(stem):]), int(last) + 1)]
        else:
            out.append(tok)
    return out


def instances(name):
    row = FAMILIES[name]
    inst = COMMON + expand(row["inst"])
    if row.get("edma"):
        inst.append("EDMA")
    if not row.get("remap"):
        inst.append("SCFG")
    return inst


def series_row(name):
    return catalogue.series_by_name(name)


def series_index(name):
    return [s["name"] for s in catalogue.SERIES].index(name) + 1


def device_rows(name):
    return catalogue.device_rows(series_row(name))


PACKAGE_INDEX = {p: i for i, p in enumerate(catalogue.PACKAGES)}
