/**
  **************************************************************************
  * @file     mq48_cm4_core.h
  * @brief    cortex-m4 core peripherals of the mq48 devices: interrupt
  *           controller, system control block, system timer, core intrinsics
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

#ifndef __MQ48_CM4_CORE_H
#define __MQ48_CM4_CORE_H

#ifdef __cplusplus
extern "C" {
#endif

#include <stdint.h>

/** @addtogroup core_support
  * @{
  */

/* number of priority bits the interrupt controller implements */
#ifndef MQ_NVIC_PRIORITY_BITS
#define MQ_NVIC_PRIORITY_BITS            4
#endif

/**
  * @brief interrupt controller registers
  */
typedef struct
{
  volatile uint32_t iser[8];             /*!< 0x000 interrupt set enable */
  uint32_t reserved0[24];
  volatile uint32_t icer[8];             /*!< 0x080 interrupt clear enable */
  uint32_t reserved1[24];
  volatile uint32_t ispr[8];             /*!< 0x100 interrupt set pending */
  uint32_t reserved2[24];
  volatile uint32_t icpr[8];             /*!< 0x180 interrupt clear pending */
  uint32_t reserved3[24];
  volatile uint32_t iabr[8];             /*!< 0x200 interrupt active */
  uint32_t reserved4[56];
  volatile uint8_t  ipr[240];            /*!< 0x300 interrupt priority, one byte each */
  uint32_t reserved5[644];
  volatile uint32_t stir;                /*!< 0xe00 software trigger */
} mq_nvic_type;

/**
  * @brief system control block registers
  */
typedef struct
{
  volatile uint32_t cpuid;               /*!< 0x00 cpu identification */
  volatile uint32_t icsr;                /*!< 0x04 interrupt control and state */
  volatile uint32_t vtor;                /*!< 0x08 vector table offset */
  volatile uint32_t aircr;               /*!< 0x0c application interrupt and reset control */
  volatile uint32_t scr;                 /*!< 0x10 system control */
  volatile uint32_t ccr;                 /*!< 0x14 configuration and control */
  volatile uint8_t  shpr[12];            /*!< 0x18 system handler priorities (handlers 4 to 15) */
  volatile uint32_t shcsr;               /*!< 0x24 system handler control and state */
  volatile uint32_t cfsr;                /*!< 0x28 configurable fault status */
  volatile uint32_t hfsr;                /*!< 0x2c hard fault status */
  volatile uint32_t dfsr;                /*!< 0x30 debug fault status */
  volatile uint32_t mmfar;               /*!< 0x34 memory manage fault address */
  volatile uint32_t bfar;                /*!< 0x38 bus fault address */
  volatile uint32_t afsr;                /*!< 0x3c auxiliary fault status */
  uint32_t reserved0[18];
  volatile uint32_t cpacr;               /*!< 0x88 coprocessor access control */
} mq_scb_type;

/**
  * @brief system timer registers
  */
typedef struct
{
  volatile uint32_t ctrl;                /*!< 0x00 control and status */
  volatile uint32_t load;                /*!< 0x04 reload value */
  volatile uint32_t val;                 /*!< 0x08 current value */
  volatile uint32_t calib;               /*!< 0x0c calibration */
} mq_systick_type;

#define MQ_SCS_BASE                      ((uint32_t)0xE000E000)
#define MQ_SYSTICK_BASE                  (MQ_SCS_BASE + 0x0010)
#define MQ_NVIC_BASE                     (MQ_SCS_BASE + 0x0100)
#define MQ_SCB_BASE                      (MQ_SCS_BASE + 0x0D00)

#define MQ_NVIC                          ((mq_nvic_type *) MQ_NVIC_BASE)
#define MQ_SCB                           ((mq_scb_type *) MQ_SCB_BASE)
#define MQ_SYSTICK                       ((mq_systick_type *) MQ_SYSTICK_BASE)

/* aircr: the write key and the priority grouping field */
#define MQ_SCB_AIRCR_VECTKEY             ((uint32_t)0x05FA0000)
#define MQ_SCB_AIRCR_PRIGROUP_POS        8
#define MQ_SCB_AIRCR_PRIGROUP_MASK       ((uint32_t)0x00000700)
#define MQ_SCB_AIRCR_SYSRESETREQ         ((uint32_t)0x00000004)

/* systick ctrl bits */
#define MQ_SYSTICK_CTRL_ENABLE           ((uint32_t)0x00000001)
#define MQ_SYSTICK_CTRL_TICKINT          ((uint32_t)0x00000002)
#define MQ_SYSTICK_CTRL_CLKSOURCE        ((uint32_t)0x00000004)
#define MQ_SYSTICK_LOAD_MAX              ((uint32_t)0x00FFFFFF)

/* core intrinsics ---------------------------------------------------------- */
#if defined(__GNUC__) && !defined(__CC_ARM)
static inline void mq_irq_enable(void)    { __asm volatile ("cpsie i" : : : "memory"); }
static inline void mq_irq_disable(void)   { __asm volatile ("cpsid i" : : : "memory"); }
static inline void mq_dsb(void)           { __asm volatile ("dsb 0xF" : : : "memory"); }
static inline void mq_isb(void)           { __asm volatile ("isb 0xF" : : : "memory"); }
static inline void mq_nop(void)           { __asm volatile ("nop"); }
#elif defined(__ICCARM__)
#include <intrinsics.h>
#define mq_irq_enable()                  __enable_interrupt()
#define mq_irq_disable()                 __disable_interrupt()
#define mq_dsb()                         __DSB()
#define mq_isb()                         __ISB()
#define mq_nop()                         __no_operation()
#elif defined(__CC_ARM) || defined(__ARMCC_VERSION)
#define mq_irq_enable()                  __enable_irq()
#define mq_irq_disable()                 __disable_irq()
#define mq_dsb()                         __dsb(0xF)
#define mq_isb()                         __isb(0xF)
#define mq_nop()                         __nop()
#else
#define mq_irq_enable()
#define mq_irq_disable()
#define mq_dsb()
#define mq_isb()
#define mq_nop()
#endif

/**
  * @brief  the priority grouping field of aircr (7 minus the preemption bits + 4).
  */
static inline uint32_t mq_nvic_priority_grouping_get(void)
{
  return (MQ_SCB->aircr & MQ_SCB_AIRCR_PRIGROUP_MASK) >> MQ_SCB_AIRCR_PRIGROUP_POS;
}

/**
  * @brief  sets the priority of an interrupt (negative numbers: system handlers).
  * @param  irqn: interrupt number
  * @param  priority: priority value in the implemented bits
  */
static inline void mq_nvic_priority_set(int32_t irqn, uint32_t priority)
{
  const uint8_t value = (uint8_t)((priority << (8 - MQ_NVIC_PRIORITY_BITS)) & 0xFF);
  if(irqn >= 0)
  {
    MQ_NVIC->ipr[irqn] = value;
  }
  else
  {
    MQ_SCB->shpr[(((uint32_t)irqn) & 0xF) - 4] = value;
  }
}

/**
  * @brief  enables an external interrupt.
  */
static inline void mq_nvic_enable(int32_t irqn)
{
  if(irqn >= 0)
  {
    MQ_NVIC->iser[((uint32_t)irqn) >> 5] = (uint32_t)1 << (((uint32_t)irqn) & 0x1F);
  }
}

/**
  * @brief  disables an external interrupt.
  */
static inline void mq_nvic_disable(int32_t irqn)
{
  if(irqn >= 0)
  {
    MQ_NVIC->icer[((uint32_t)irqn) >> 5] = (uint32_t)1 << (((uint32_t)irqn) & 0x1F);
    mq_dsb();
    mq_isb();
  }
}

/**
  * @brief  requests a system reset and waits for it.
  */
static inline void mq_system_reset(void)
{
  mq_dsb();
  MQ_SCB->aircr = MQ_SCB_AIRCR_VECTKEY | (MQ_SCB->aircr & MQ_SCB_AIRCR_PRIGROUP_MASK) |
                  MQ_SCB_AIRCR_SYSRESETREQ;
  mq_dsb();
  for(;;)
  {
    mq_nop();
  }
}

/**
  * @}
  */

#ifdef __cplusplus
}
#endif

#endif
