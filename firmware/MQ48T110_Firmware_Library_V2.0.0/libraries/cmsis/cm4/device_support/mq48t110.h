/**
  **************************************************************************
  * @file     mq48t110.h
  * @brief    mq48t110 device header: devices, memory map, registers and
  *           interrupt numbers
  **************************************************************************
  *                       Copyright notice & Disclaimer
  *
  * The software and its documentation are provided by Velmora "as is" to
  * help customers develop products with MQ48 microcontrollers. Velmora
  * grants the right to use, copy and modify this code in products built
  * with MQ48 microcontrollers. The software comes without warranty of any
  * kind, express or implied, including fitness for a particular purpose;
  * Velmora is not liable for any damage arising from its use.
  **************************************************************************
  */

#ifndef __MQ48T110_H
#define __MQ48T110_H

#ifdef __cplusplus
extern "C" {
#endif

#include <stdint.h>

/** @addtogroup device_support
  * @{
  */

/* devices ------------------------------------------------------------------ */
#if !defined(MQ48T110F6P) && !defined(MQ48T110F8P) && !defined(MQ48T110K6U) && \
    !defined(MQ48T110K8U) && !defined(MQ48T110K8T) && !defined(MQ48T110C8T) && \
    !defined(MQ48T110CBT)
#error "define the device of the project, for example MQ48T110C8T"
#endif

#if defined(MQ48T110F6P) || defined(MQ48T110K6U)
#define MQ48T110_FLASH_SIZE              ((uint32_t)(32 * 1024))
#define MQ48T110_SRAM_SIZE               ((uint32_t)(8 * 1024))
#elif defined(MQ48T110CBT)
#define MQ48T110_FLASH_SIZE              ((uint32_t)(128 * 1024))
#define MQ48T110_SRAM_SIZE               ((uint32_t)(16 * 1024))
#else
#define MQ48T110_FLASH_SIZE              ((uint32_t)(64 * 1024))
#define MQ48T110_SRAM_SIZE               ((uint32_t)(8 * 1024))
#endif

#if defined(MQ48T110F6P) || defined(MQ48T110F8P)
#define MQ48T110_PACKAGE_PINS            20
#elif defined(MQ48T110K6U) || defined(MQ48T110K8U) || defined(MQ48T110K8T)
#define MQ48T110_PACKAGE_PINS            32
#else
#define MQ48T110_PACKAGE_PINS            48
#endif

/* library version 2.0.0 */
#define MQ48T110_LIBRARY_VERSION         ((uint32_t)0x00020000)

/* interrupt numbers -------------------------------------------------------- */
typedef enum
{
  /* core exceptions */
  Reset_IRQn                   = -15,
  NonMaskableInt_IRQn          = -14,
  HardFault_IRQn               = -13,
  MemoryManagement_IRQn        = -12,
  BusFault_IRQn                = -11,
  UsageFault_IRQn              = -10,
  SVCall_IRQn                  = -5,
  DebugMonitor_IRQn            = -4,
  PendSV_IRQn                  = -2,
  SysTick_IRQn                 = -1,

  /* peripheral interrupts */
  WWDT_IRQn                    = 0,
  PVM_IRQn                     = 1,
  ERTC_IRQn                    = 2,
  FLASH_IRQn                   = 3,
  CRM_IRQn                     = 4,
  EXINT1_0_IRQn                = 5,
  EXINT3_2_IRQn                = 6,
  EXINT15_4_IRQn               = 7,
  DMA1_Channel1_IRQn           = 8,
  DMA1_Channel3_2_IRQn         = 9,
  DMA1_Channel5_4_IRQn         = 10,
  ADC1_CMP_IRQn                = 11,
  TMR1_BRK_OVF_TRG_HALL_IRQn   = 12,
  TMR1_CH_IRQn                 = 13,
  TMR3_GLOBAL_IRQn             = 14,
  TMR6_GLOBAL_IRQn             = 15,
  TMR14_GLOBAL_IRQn            = 16,
  TMR15_GLOBAL_IRQn            = 17,
  TMR16_GLOBAL_IRQn            = 18,
  TMR17_GLOBAL_IRQn            = 19,
  I2C1_EVT_IRQn                = 20,
  I2C1_ERR_IRQn                = 21,
  I2C2_EVT_IRQn                = 22,
  I2C2_ERR_IRQn                = 23,
  SPI1_IRQn                    = 24,
  SPI2_IRQn                    = 25,
  USART1_IRQn                  = 26,
  USART2_IRQn                  = 27,
  ERTCAlarm_IRQn               = 28
} IRQn_Type;

#define MQ48T110_IRQ_COUNT               29

#include "mq48_cm4_core.h"
#include "system_mq48t110.h"

/* common types ------------------------------------------------------------- */
typedef enum {RESET = 0, SET = !RESET} flag_status;
typedef enum {FALSE = 0, TRUE = !FALSE} confirm_state;
typedef enum {ERROR = 0, SUCCESS = !ERROR} error_status;
/* enable words of settings that the configuration tests by name */
typedef enum {DISABLE = 0, ENABLE = !DISABLE} functional_state;

/* registers ---------------------------------------------------------------- */

/**
  * @brief clock and reset management
  */
typedef struct
{
  volatile uint32_t ctrl;                /*!< 0x00 oscillators and pll enable and status */
  volatile uint32_t cfg;                 /*!< 0x04 system clock, bus dividers, pll, clkout */
  volatile uint32_t clkint;              /*!< 0x08 clock interrupts */
  volatile uint32_t apb2rst;             /*!< 0x0c apb2 peripheral reset */
  volatile uint32_t apb1rst;             /*!< 0x10 apb1 peripheral reset */
  volatile uint32_t ahben;               /*!< 0x14 ahb peripheral clock enable */
  volatile uint32_t apb2en;              /*!< 0x18 apb2 peripheral clock enable */
  volatile uint32_t apb1en;              /*!< 0x1c apb1 peripheral clock enable */
  volatile uint32_t bpdc;                /*!< 0x20 battery powered domain control */
  volatile uint32_t ctrlsts;             /*!< 0x24 lick and reset flags */
  volatile uint32_t ahbrst;              /*!< 0x28 ahb peripheral reset */
  volatile uint32_t pllcfg;              /*!< 0x2c flexible pll factors */
  volatile uint32_t misc1;               /*!< 0x30 clkout divider, hick selection */
  volatile uint32_t misc2;               /*!< 0x34 auto step mode */
} crm_type;

/**
  * @brief flash memory interface
  */
typedef struct
{
  volatile uint32_t psr;                 /*!< 0x00 performance select (wait cycles) */
  volatile uint32_t unlock;              /*!< 0x04 unlock key */
  volatile uint32_t usd_unlock;          /*!< 0x08 user system data unlock key */
  volatile uint32_t sts;                 /*!< 0x0c status */
  volatile uint32_t ctrl;                /*!< 0x10 control */
  volatile uint32_t addr;                /*!< 0x14 address */
  uint32_t reserved0;
  volatile uint32_t usd;                 /*!< 0x1c user system data */
  volatile uint32_t epps;                /*!< 0x20 erase and program protection */
} flash_type;

/**
  * @brief power control
  */
typedef struct
{
  volatile uint32_t ctrl;                /*!< 0x00 voltage monitor, domain access */
  volatile uint32_t ctrlsts;             /*!< 0x04 wakeup pins and flags */
} pwc_type;

/**
  * @brief general purpose i/o port
  */
typedef struct
{
  volatile uint32_t cfgr;                /*!< 0x00 mode, two bits per pin */
  volatile uint32_t omode;               /*!< 0x04 output type, one bit per pin */
  volatile uint32_t odrvr;               /*!< 0x08 drive strength, two bits per pin */
  volatile uint32_t pull;                /*!< 0x0c pull, two bits per pin */
  volatile uint32_t idt;                 /*!< 0x10 input data */
  volatile uint32_t odt;                 /*!< 0x14 output data */
  volatile uint32_t scr;                 /*!< 0x18 set (bits 0-15) and clear (bits 16-31) */
  volatile uint32_t wpr;                 /*!< 0x1c write protect */
  volatile uint32_t muxl;                /*!< 0x20 multiplexer of pins 0-7, four bits per pin */
  volatile uint32_t muxh;                /*!< 0x24 multiplexer of pins 8-15 */
  volatile uint32_t clr;                 /*!< 0x28 clear */
} gpio_type;

/**
  * @brief system configuration
  */
typedef struct
{
  volatile uint32_t cfg1;                /*!< 0x00 pin remap, dma remaps, infrared */
  uint32_t reserved0;
  volatile uint32_t exintc[4];           /*!< 0x08 exint line sources, four bits per line */
  volatile uint32_t cfg2;                /*!< 0x18 lock bits */
} scfg_type;

/**
  * @brief external interrupt and event lines
  */
typedef struct
{
  volatile uint32_t inten;               /*!< 0x00 interrupt enable */
  volatile uint32_t evten;               /*!< 0x04 event enable */
  volatile uint32_t polcfg1;             /*!< 0x08 rising edge */
  volatile uint32_t polcfg2;             /*!< 0x0c falling edge */
  volatile uint32_t swtrg;               /*!< 0x10 software trigger */
  volatile uint32_t intsts;              /*!< 0x14 interrupt status */
} exint_type;

/**
  * @brief dma controller
  */
typedef struct
{
  volatile uint32_t sts;                 /*!< 0x00 status */
  volatile uint32_t clr;                 /*!< 0x04 flag clear */
} dma_type;

/**
  * @brief dma channel
  */
typedef struct
{
  volatile uint32_t ctrl;                /*!< 0x00 channel control */
  volatile uint32_t dtcnt;               /*!< 0x04 data count */
  volatile uint32_t paddr;               /*!< 0x08 peripheral address */
  volatile uint32_t maddr;               /*!< 0x0c memory address */
  uint32_t reserved0;
} dma_channel_type;

/**
  * @brief analog to digital converter
  */
typedef struct
{
  volatile uint32_t sts;                 /*!< 0x00 status */
  volatile uint32_t ctrl1;               /*!< 0x04 control 1 */
  volatile uint32_t ctrl2;               /*!< 0x08 control 2 */
  volatile uint32_t spt1;                /*!< 0x0c sample time of channels 10-17 */
  volatile uint32_t spt2;                /*!< 0x10 sample time of channels 0-9 */
  volatile uint32_t pcdto[4];            /*!< 0x14 preempted channel offsets */
  volatile uint32_t vmhb;                /*!< 0x24 voltage monitor high boundary */
  volatile uint32_t vmlb;                /*!< 0x28 voltage monitor low boundary */
  volatile uint32_t osq[3];              /*!< 0x2c ordinary sequence */
  volatile uint32_t psq;                 /*!< 0x38 preempted sequence */
  volatile uint32_t pdt[4];              /*!< 0x3c preempted data */
  volatile uint32_t dt;                  /*!< 0x4c ordinary data */
} adc_type;

/**
  * @brief comparator
  */
typedef struct
{
  volatile uint32_t ctrlsts;             /*!< 0x00 control and status */
} cmp_type;

/**
  * @brief timer
  */
typedef struct
{
  volatile uint32_t ctrl1;               /*!< 0x00 control 1 */
  volatile uint32_t ctrl2;               /*!< 0x04 control 2 */
  volatile uint32_t stctrl;              /*!< 0x08 subordinate mode control */
  volatile uint32_t iden;                /*!< 0x0c interrupt and dma enable */
  volatile uint32_t ists;                /*!< 0x10 interrupt status */
  volatile uint32_t swevt;               /*!< 0x14 software event */
  volatile uint32_t cm1;                 /*!< 0x18 channel mode of channels 1 and 2 */
  volatile uint32_t cm2;                 /*!< 0x1c channel mode of channels 3 and 4 */
  volatile uint32_t cctrl;               /*!< 0x20 channel control */
  volatile uint32_t cval;                /*!< 0x24 counter value */
  volatile uint32_t div;                 /*!< 0x28 divider */
  volatile uint32_t pr;                  /*!< 0x2c period */
  volatile uint32_t rpr;                 /*!< 0x30 repetition period */
  volatile uint32_t c1dt;                /*!< 0x34 channel 1 data */
  volatile uint32_t c2dt;                /*!< 0x38 channel 2 data */
  volatile uint32_t c3dt;                /*!< 0x3c channel 3 data */
  volatile uint32_t c4dt;                /*!< 0x40 channel 4 data */
  volatile uint32_t brk;                 /*!< 0x44 break and dead time */
  volatile uint32_t dmactrl;             /*!< 0x48 dma burst control */
  volatile uint32_t dt;                  /*!< 0x4c dma data window */
  volatile uint32_t rmp;                 /*!< 0x50 channel 1 input remap */
} tmr_type;

/**
  * @brief enhanced real time clock
  */
typedef struct
{
  volatile uint32_t time;                /*!< 0x00 time */
  volatile uint32_t date;                /*!< 0x04 date */
  volatile uint32_t ctrl;                /*!< 0x08 control */
  volatile uint32_t sts;                 /*!< 0x0c initialisation and status */
  volatile uint32_t div;                 /*!< 0x10 dividers */
  volatile uint32_t wat;                 /*!< 0x14 wakeup timer */
  volatile uint32_t ccal;                /*!< 0x18 coarse calibration */
  volatile uint32_t ala;                 /*!< 0x1c alarm a */
  volatile uint32_t alb;                 /*!< 0x20 alarm b */
  volatile uint32_t wp;                  /*!< 0x24 write protection */
  volatile uint32_t sbs;                 /*!< 0x28 sub second */
  volatile uint32_t tadj;                /*!< 0x2c time adjust */
  volatile uint32_t tstm;                /*!< 0x30 time stamp time */
  volatile uint32_t tsdt;                /*!< 0x34 time stamp date */
  volatile uint32_t tssbs;               /*!< 0x38 time stamp sub second */
  volatile uint32_t scal;                /*!< 0x3c smooth calibration */
  volatile uint32_t tamp;                /*!< 0x40 tamper and output configuration */
  volatile uint32_t alasbs;              /*!< 0x44 alarm a sub second */
  volatile uint32_t albsbs;              /*!< 0x48 alarm b sub second */
  uint32_t reserved0;
  volatile uint32_t bpr[5];              /*!< 0x50 battery powered data */
} ertc_type;

/**
  * @brief universal synchronous/asynchronous receiver transmitter
  */
typedef struct
{
  volatile uint32_t sts;                 /*!< 0x00 status */
  volatile uint32_t dt;                  /*!< 0x04 data */
  volatile uint32_t baudr;               /*!< 0x08 baud rate divider */
  volatile uint32_t ctrl1;               /*!< 0x0c control 1 */
  volatile uint32_t ctrl2;               /*!< 0x10 control 2 */
  volatile uint32_t ctrl3;               /*!< 0x14 control 3 */
  volatile uint32_t gdiv;                /*!< 0x18 guard time and divider */
  volatile uint32_t rs485;               /*!< 0x1c rs485 delays */
  volatile uint32_t ifc;                 /*!< 0x20 flag clear */
} usart_type;

/**
  * @brief serial peripheral interface and i2s
  */
typedef struct
{
  volatile uint32_t ctrl1;               /*!< 0x00 control 1 */
  volatile uint32_t ctrl2;               /*!< 0x04 control 2 */
  volatile uint32_t sts;                 /*!< 0x08 status */
  volatile uint32_t dt;                  /*!< 0x0c data */
  volatile uint32_t cpoly;               /*!< 0x10 crc polynomial */
  volatile uint32_t rcrc;                /*!< 0x14 receive crc */
  volatile uint32_t tcrc;                /*!< 0x18 transmit crc */
  volatile uint32_t i2sctrl;             /*!< 0x1c i2s control */
  volatile uint32_t i2sclk;              /*!< 0x20 i2s clock divider */
} spi_type;

/**
  * @brief inter-integrated circuit bus
  */
typedef struct
{
  volatile uint32_t ctrl1;               /*!< 0x00 control 1 */
  volatile uint32_t ctrl2;               /*!< 0x04 control 2 (clock frequency, dma, interrupts) */
  volatile uint32_t oaddr1;              /*!< 0x08 own address 1 */
  volatile uint32_t oaddr2;              /*!< 0x0c own address 2 */
  volatile uint32_t dt;                  /*!< 0x10 data */
  volatile uint32_t sts1;                /*!< 0x14 status 1 */
  volatile uint32_t sts2;                /*!< 0x18 status 2 */
  volatile uint32_t clkctrl;             /*!< 0x1c clock control */
  volatile uint32_t tmrise;              /*!< 0x20 rise time */
} i2c_type;

/**
  * @brief crc calculation unit
  */
typedef struct
{
  volatile uint32_t dt;                  /*!< 0x00 data */
  volatile uint32_t cdt;                 /*!< 0x04 common data */
  volatile uint32_t ctrl;                /*!< 0x08 control */
  uint32_t reserved0;
  volatile uint32_t idt;                 /*!< 0x10 initial value */
  volatile uint32_t poly;                /*!< 0x14 polynomial */
} crc_type;

/**
  * @brief watchdog timer
  */
typedef struct
{
  volatile uint32_t cmd;                 /*!< 0x00 command */
  volatile uint32_t div;                 /*!< 0x04 divider */
  volatile uint32_t rld;                 /*!< 0x08 reload */
  volatile uint32_t sts;                 /*!< 0x0c status */
  volatile uint32_t win;                 /*!< 0x10 window */
} wdt_type;

/**
  * @brief window watchdog timer
  */
typedef struct
{
  volatile uint32_t ctrl;                /*!< 0x00 control and counter */
  volatile uint32_t cfg;                 /*!< 0x04 window and divider */
  volatile uint32_t sts;                 /*!< 0x08 status */
} wwdt_type;

/**
  * @brief debug support
  */
typedef struct
{
  volatile uint32_t idcode;              /*!< 0x00 device identification */
  volatile uint32_t ctrl;                /*!< 0x04 low power debug */
  volatile uint32_t apb1_pause;          /*!< 0x08 apb1 peripherals paused in debug */
  volatile uint32_t apb2_pause;          /*!< 0x0c apb2 peripherals paused in debug */
} debug_type;

/* memory map --------------------------------------------------------------- */
#define FLASH_BASE                       ((uint32_t)0x08000000)
#define SRAM_BASE                        ((uint32_t)0x20000000)
#define PERIPH_BASE                      ((uint32_t)0x40000000)
#define DEBUG_BASE                       ((uint32_t)0xE0042000)

#define APB1PERIPH_BASE                  (PERIPH_BASE)
#define APB2PERIPH_BASE                  (PERIPH_BASE + 0x00010000)
#define AHBPERIPH1_BASE                  (PERIPH_BASE + 0x00020000)
#define AHBPERIPH2_BASE                  (PERIPH_BASE + 0x08000000)

#define TMR3_BASE                        (APB1PERIPH_BASE + 0x0400)
#define TMR6_BASE                        (APB1PERIPH_BASE + 0x1000)
#define TMR14_BASE                       (APB1PERIPH_BASE + 0x2000)
#define ERTC_BASE                        (APB1PERIPH_BASE + 0x2800)
#define WWDT_BASE                        (APB1PERIPH_BASE + 0x2C00)
#define WDT_BASE                         (APB1PERIPH_BASE + 0x3000)
#define SPI2_BASE                        (APB1PERIPH_BASE + 0x3800)
#define USART2_BASE                      (APB1PERIPH_BASE + 0x4400)
#define I2C1_BASE                        (APB1PERIPH_BASE + 0x5400)
#define I2C2_BASE                        (APB1PERIPH_BASE + 0x5800)
#define PWC_BASE                         (APB1PERIPH_BASE + 0x7000)

#define SCFG_BASE                        (APB2PERIPH_BASE + 0x0000)
#define CMP_BASE                         (APB2PERIPH_BASE + 0x0200)
#define EXINT_BASE                       (APB2PERIPH_BASE + 0x0400)
#define ADC1_BASE                        (APB2PERIPH_BASE + 0x2400)
#define TMR1_BASE                        (APB2PERIPH_BASE + 0x2C00)
#define SPI1_BASE                        (APB2PERIPH_BASE + 0x3000)
#define USART1_BASE                      (APB2PERIPH_BASE + 0x3800)
#define TMR15_BASE                       (APB2PERIPH_BASE + 0x4000)
#define TMR16_BASE                       (APB2PERIPH_BASE + 0x4400)
#define TMR17_BASE                       (APB2PERIPH_BASE + 0x4800)

#define DMA1_BASE                        (AHBPERIPH1_BASE + 0x0000)
#define DMA1_CHANNEL1_BASE               (DMA1_BASE + 0x0008)
#define DMA1_CHANNEL2_BASE               (DMA1_BASE + 0x001C)
#define DMA1_CHANNEL3_BASE               (DMA1_BASE + 0x0030)
#define DMA1_CHANNEL4_BASE               (DMA1_BASE + 0x0044)
#define DMA1_CHANNEL5_BASE               (DMA1_BASE + 0x0058)
#define CRM_BASE                         (AHBPERIPH1_BASE + 0x1000)
#define FLASH_REG_BASE                   (AHBPERIPH1_BASE + 0x2000)
#define CRC_BASE                         (AHBPERIPH1_BASE + 0x3000)

#define GPIOA_BASE                       (AHBPERIPH2_BASE + 0x0000)
#define GPIOB_BASE                       (AHBPERIPH2_BASE + 0x0400)
#define GPIOC_BASE                       (AHBPERIPH2_BASE + 0x0800)
#define GPIOF_BASE                       (AHBPERIPH2_BASE + 0x1400)

/* peripherals -------------------------------------------------------------- */
#define TMR3                             ((tmr_type *) TMR3_BASE)
#define TMR6                             ((tmr_type *) TMR6_BASE)
#define TMR14                            ((tmr_type *) TMR14_BASE)
#define ERTC                             ((ertc_type *) ERTC_BASE)
#define WWDT                             ((wwdt_type *) WWDT_BASE)
#define WDT                              ((wdt_type *) WDT_BASE)
#define SPI2                             ((spi_type *) SPI2_BASE)
#define USART2                           ((usart_type *) USART2_BASE)
#define I2C1                             ((i2c_type *) I2C1_BASE)
#define I2C2                             ((i2c_type *) I2C2_BASE)
#define PWC                              ((pwc_type *) PWC_BASE)
#define SCFG                             ((scfg_type *) SCFG_BASE)
#define CMP                              ((cmp_type *) CMP_BASE)
#define EXINT                            ((exint_type *) EXINT_BASE)
#define ADC1                             ((adc_type *) ADC1_BASE)
#define TMR1                             ((tmr_type *) TMR1_BASE)
#define SPI1                             ((spi_type *) SPI1_BASE)
#define USART1                           ((usart_type *) USART1_BASE)
#define TMR15                            ((tmr_type *) TMR15_BASE)
#define TMR16                            ((tmr_type *) TMR16_BASE)
#define TMR17                            ((tmr_type *) TMR17_BASE)
#define DMA1                             ((dma_type *) DMA1_BASE)
#define DMA1_CHANNEL1                    ((dma_channel_type *) DMA1_CHANNEL1_BASE)
#define DMA1_CHANNEL2                    ((dma_channel_type *) DMA1_CHANNEL2_BASE)
#define DMA1_CHANNEL3                    ((dma_channel_type *) DMA1_CHANNEL3_BASE)
#define DMA1_CHANNEL4                    ((dma_channel_type *) DMA1_CHANNEL4_BASE)
#define DMA1_CHANNEL5                    ((dma_channel_type *) DMA1_CHANNEL5_BASE)
#define CRM                              ((crm_type *) CRM_BASE)
#define FLASH                            ((flash_type *) FLASH_REG_BASE)
#define CRC                              ((crc_type *) CRC_BASE)
#define GPIOA                            ((gpio_type *) GPIOA_BASE)
#define GPIOB                            ((gpio_type *) GPIOB_BASE)
#define GPIOC                            ((gpio_type *) GPIOC_BASE)
#define GPIOF                            ((gpio_type *) GPIOF_BASE)
#define DEBUGMCU                         ((debug_type *) DEBUG_BASE)

/**
  * @}
  */

#ifdef USE_STDPERIPH_DRIVER
#include "mq48t110_conf.h"
#endif

#ifdef __cplusplus
}
#endif

#endif
