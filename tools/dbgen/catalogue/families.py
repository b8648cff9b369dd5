"""Per-series tables for the generated device files: instances, crystal pins, clock outputs,
DMA controllers and the debug row style."""


def _expand(text):
    out = []
    for tok in text.split():
        if ".." in tok:  # TMR1..14
            head, last = tok.split("..")
            stem = head.rstrip("0123456789")
            out += ["%s%d" % (stem, i) for i in range(int(head[len(stem):]), int(last) + 1)]
        else:
            out.append(tok)
    return out


BIG = "USART1..3 UART4 UART5 USART6 UART7 UART8 SPI1..4 I2S1..4 I2C1..3 ADC1..3 DAC CAN1 CAN2"

FAMILIES = {
    "MQ48T510": dict(inst=BIG + " USB_OTGFS1 USB_OTGFS2 QSPI1 QSPI2 SDIO1 SDIO2 XMC DVP"
                     " TMR1..14 TMR20 ERTC WWDT EDMA IRTMR", dma=(7, 7), edma=8,
                     osc="PH", clkout={"CRM_CLKOUT1": ["PA8:0", "PE4:0"],
                                       "CRM_CLKOUT2": ["PC9:0"]}, debug="combo"),
    "MQ48T520": dict(inst=BIG + " USB_OTGFS1 USB_OTGFS2 QSPI1 QSPI2 SDIO1 SDIO2 XMC DVP EMAC"
                     " TMR1..14 TMR20 ERTC WWDT EDMA IRTMR", dma=(7, 7), edma=8,
                     osc="PH", clkout={"CRM_CLKOUT1": ["PA8:0", "PE4:0"],
                                       "CRM_CLKOUT2": ["PC9:0"]}, debug="combo"),
    "MQ48T250": dict(inst=BIG + " USBFS SDIO1 SDIO2 XMC SPIM TMR1..14 RTC WWDT",
                     dma=(7, 7), osc="PD", clkout={"CRM_CLKOUT": ["PA8:0"]}, debug="combo"),
    "MQ48V250": dict(inst=BIG + " USBFS SDIO1 SDIO2 XMC SPIM EMAC TMR1..14 RTC WWDT",
                     dma=(7, 7), osc="PD", clkout={"CRM_CLKOUT": ["PA8:0"]}, debug="combo"),
    "MQ48T260": dict(inst=BIG + " USBFS SDIO1 SDIO2 XMC SPIM EMAC TMR1..14 RTC WWDT",
                     dma=(7, 7), osc="PD", clkout={"CRM_CLKOUT": ["PA8:0"]}, debug="combo"),
    "MQ48T120": dict(inst="USART1..4 SPI1..3 I2S1..3 I2C1 I2C2 ADC1 CAN1 USB_OTGFS1 TMR1..3"
                     " TMR6 TMR7 TMR13..17 ERTC WWDT IRTMR", dma=(7,), osc="PF",
                     clkout={"CRM_CLKOUT": ["PA8:0", "PA9:5", "PB13:3"]}, debug="check"),
    "MQ48T320": dict(inst="USART1..3 UART4 UART5 SPI1 SPI2 I2S1 I2S2 I2C1 I2C2 ADC1 CMP1 CMP2"
                     " CAN1 USB_OTGFS1 SDIO1 TMR1..5 TMR9..11 ERTC WWDT", dma=(7, 7), osc="PD",
                     clkout={"CRM_CLKOUT": ["PA8:0"]}, debug="combo"),
    "MQ48W320": dict(inst="USART1 USART2 UART5 SPI2 I2C1 ADC1 CMP1 CMP2 CAN1 USB_OTGFS1"
                     " TMR1..5 TMR9..11 ERTC WWDT", dma=(7,), osc="PD",
                     clkout={"CRM_CLKOUT": ["PA8:0"]}, debug="combo"),
    "MQ48T310": dict(inst="USART1..3 UART4 UART5 SPI1 SPI2 I2S1 I2S2 I2C1 I2C2 ADC1 ADC2 CAN1"
                     " CAN2 USBFS SDIO1 SPIM TMR1..5 TMR8..11 RTC WWDT", dma=(7, 7), osc="PD",
                     clkout={"CRM_CLKOUT": ["PA8:0"]}, debug="combo"),
    "MQ48T230": dict(inst="USART1..3 UART4 UART5 SPI1..3 I2S1..3 I2C1 I2C2 ADC1 ADC2 DAC CAN1"
                     " USBFS SDIO1 TMR1..10 RTC WWDT", dma=(7, 5), osc="PD",
                     clkout={"CRM_CLKOUT": ["PA8:0"]}, debug="combo"),
    "MQ48T050": dict(inst="USART1 USART2 SPI1 I2C1 ADC1 CMP1 TMR1 TMR3 TMR14..17 ERTC WWDT",
                     dma=(5,), osc="PF", clkout={"CRM_CLKOUT": ["PA8:0", "PB13:3"]},
                     debug="check"),
    "MQ48T130": dict(inst="USART1..3 UART4 UART5 USART6 UART7 UART8 SPI1..3 I2S1..3 I2C1..3"
                     " ADC1 DAC CAN1 CAN2 USB_OTGFS1 XMC TMR1..4 TMR6 TMR7 TMR9..14 ERTC WWDT"
                     " IRTMR", dma=(7, 7), osc="PH",
                     clkout={"CRM_CLKOUT": ["PA8:0", "PC9:0"]}, debug="combo"),
    "MQ48V130": dict(inst="USART1..3 UART4 UART5 USART6 UART7 UART8 SPI1..3 I2S1..3 I2C1..3"
                     " ADC1 DAC CAN1 CAN2 USB_OTGFS1 TMR1..4 TMR6 TMR7 TMR9..14 ERTC WWDT IRTMR",
                     dma=(7, 7), osc="PH", clkout={"CRM_CLKOUT": ["PA8:0", "PC9:0"]},
                     debug="combo"),
    "MQ48T220": dict(inst="USART1..3 UART4 UART5 USART6 UART7 UART8 SPI1..3 I2S1..3 I2SF5"
                     " I2C1..3 ADC1 CAN1 USB_OTGFS1 USB_OTGHS1 QSPI1 TMR1..4 TMR6 TMR7 TMR9..11"
                     " TMR13 TMR14 ERTC WWDT IRTMR", dma=(7, 7), osc="PH",
                     clkout={"CRM_CLKOUT": ["PA8:0", "PC9:0"]}, debug="check"),
    "MQ48T210": dict(inst="USART1..3 UART4 UART5 USART6 UART7 UART8 SPI1..3 I2S1..3 I2SF5"
                     " I2C1..3 ADC1 CAN1 USB_OTGFS1 QSPI1 TMR1..4 TMR6 TMR7 TMR9..11"
                     " TMR13 TMR14 ERTC WWDT IRTMR", dma=(7, 7), osc="PH",
                     clkout={"CRM_CLKOUT": ["PA8:0", "PC9:0"]}, debug="check"),
}

# Instances every family has besides its own list.
COMMON = ["CRM", "DEBUG", "GPIO", "NVIC", "EXINT", "PWC", "CRC", "WDT"]


def instances(series):
    fam = FAMILIES[series]
    inst = set(_expand(fam["inst"])) | set(COMMON)
    inst |= {"DMA%d" % (i + 1) for i in range(len(fam["dma"]))}
    return inst
