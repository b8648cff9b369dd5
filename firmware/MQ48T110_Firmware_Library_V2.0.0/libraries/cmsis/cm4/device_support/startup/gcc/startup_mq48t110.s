/**
  * **************************************************************************
  * @file     startup_mq48t110.s
  * @brief    start-up code of the mq48t110 for the gnu toolchain
  * *************************************************************************
  *                       Copyright notice & Disclaimer
  *
  * The software and its documentation are provided by Velmora "as is" to
  * help customers develop products with MQ48 microcontrollers. Velmora
  * grants the right to use, copy and modify this code in products built
  * with MQ48 microcontrollers. The software comes without warranty of any
  * kind, express or implied, including fitness for a particular purpose;
  * Velmora is not liable for any damage arising from its use.
  * *************************************************************************
  */

  .syntax unified
  .cpu cortex-m4
  .thumb

/**
  * @brief  the vector table: the stack top, the reset entry, the core exceptions and
  *         the interrupts of the device. The linker script puts it first in the flash.
  */
  .section .mq_vectors,"a",%progbits
  .global mq_vectors
  .type mq_vectors, %object
mq_vectors:
  .word __mq_stack_top
  .word Reset_Handler
  .word NMI_Handler
  .word HardFault_Handler
  .word MemManage_Handler
  .word BusFault_Handler
  .word UsageFault_Handler
  .word 0
  .word 0
  .word 0
  .word 0
  .word SVC_Handler
  .word DebugMon_Handler
  .word 0
  .word PendSV_Handler
  .word SysTick_Handler
  .word WWDT_IRQHandler                    /* irq  0 */
  .word PVM_IRQHandler                     /* irq  1 */
  .word ERTC_IRQHandler                    /* irq  2 */
  .word FLASH_IRQHandler                   /* irq  3 */
  .word CRM_IRQHandler                     /* irq  4 */
  .word EXINT1_0_IRQHandler                /* irq  5 */
  .word EXINT3_2_IRQHandler                /* irq  6 */
  .word EXINT15_4_IRQHandler               /* irq  7 */
  .word DMA1_Channel1_IRQHandler           /* irq  8 */
  .word DMA1_Channel3_2_IRQHandler         /* irq  9 */
  .word DMA1_Channel5_4_IRQHandler         /* irq 10 */
  .word ADC1_CMP_IRQHandler                /* irq 11 */
  .word TMR1_BRK_OVF_TRG_HALL_IRQHandler   /* irq 12 */
  .word TMR1_CH_IRQHandler                 /* irq 13 */
  .word TMR3_GLOBAL_IRQHandler             /* irq 14 */
  .word TMR6_GLOBAL_IRQHandler             /* irq 15 */
  .word TMR14_GLOBAL_IRQHandler            /* irq 16 */
  .word TMR15_GLOBAL_IRQHandler            /* irq 17 */
  .word TMR16_GLOBAL_IRQHandler            /* irq 18 */
  .word TMR17_GLOBAL_IRQHandler            /* irq 19 */
  .word I2C1_EVT_IRQHandler                /* irq 20 */
  .word I2C1_ERR_IRQHandler                /* irq 21 */
  .word I2C2_EVT_IRQHandler                /* irq 22 */
  .word I2C2_ERR_IRQHandler                /* irq 23 */
  .word SPI1_IRQHandler                    /* irq 24 */
  .word SPI2_IRQHandler                    /* irq 25 */
  .word USART1_IRQHandler                  /* irq 26 */
  .word USART2_IRQHandler                  /* irq 27 */
  .word ERTCAlarm_IRQHandler               /* irq 28 */
  .size mq_vectors, . - mq_vectors

/**
  * @brief  the reset entry: fills the initialised data from its copy in the flash,
  *         clears the zero initialised data, then runs SystemInit, the constructors
  *         of the c library and main. The stack pointer is loaded by the core.
  */
  .text
  .thumb_func
  .weak Reset_Handler
  .type Reset_Handler, %function
Reset_Handler:
  ldr   r0, =__mq_data_load
  ldr   r1, =__mq_data_start
  ldr   r2, =__mq_data_end
copy_next_word:
  cmp   r1, r2
  bhs   clear_data
  ldr   r3, [r0], #4
  str   r3, [r1], #4
  b     copy_next_word
clear_data:
  ldr   r1, =__mq_bss_start
  ldr   r2, =__mq_bss_end
  movs  r3, #0
clear_next_word:
  cmp   r1, r2
  bhs   start_program
  str   r3, [r1], #4
  b     clear_next_word
start_program:
  bl    SystemInit
  bl    __libc_init_array
  bl    main
main_returned:
  b     main_returned
  .size Reset_Handler, . - Reset_Handler

/**
  * @brief  exceptions and interrupts without a handler of their own stop here.
  */
  .thumb_func
  .type mq_unhandled_irq, %function
mq_unhandled_irq:
  b     mq_unhandled_irq
  .size mq_unhandled_irq, . - mq_unhandled_irq

/* every handler is weak: a function of the same name in the application replaces it */
  .weak NMI_Handler
  .thumb_set NMI_Handler, mq_unhandled_irq
  .weak HardFault_Handler
  .thumb_set HardFault_Handler, mq_unhandled_irq
  .weak MemManage_Handler
  .thumb_set MemManage_Handler, mq_unhandled_irq
  .weak BusFault_Handler
  .thumb_set BusFault_Handler, mq_unhandled_irq
  .weak UsageFault_Handler
  .thumb_set UsageFault_Handler, mq_unhandled_irq
  .weak SVC_Handler
  .thumb_set SVC_Handler, mq_unhandled_irq
  .weak DebugMon_Handler
  .thumb_set DebugMon_Handler, mq_unhandled_irq
  .weak PendSV_Handler
  .thumb_set PendSV_Handler, mq_unhandled_irq
  .weak SysTick_Handler
  .thumb_set SysTick_Handler, mq_unhandled_irq
  .weak WWDT_IRQHandler
  .thumb_set WWDT_IRQHandler, mq_unhandled_irq
  .weak PVM_IRQHandler
  .thumb_set PVM_IRQHandler, mq_unhandled_irq
  .weak ERTC_IRQHandler
  .thumb_set ERTC_IRQHandler, mq_unhandled_irq
  .weak FLASH_IRQHandler
  .thumb_set FLASH_IRQHandler, mq_unhandled_irq
  .weak CRM_IRQHandler
  .thumb_set CRM_IRQHandler, mq_unhandled_irq
  .weak EXINT1_0_IRQHandler
  .thumb_set EXINT1_0_IRQHandler, mq_unhandled_irq
  .weak EXINT3_2_IRQHandler
  .thumb_set EXINT3_2_IRQHandler, mq_unhandled_irq
  .weak EXINT15_4_IRQHandler
  .thumb_set EXINT15_4_IRQHandler, mq_unhandled_irq
  .weak DMA1_Channel1_IRQHandler
  .thumb_set DMA1_Channel1_IRQHandler, mq_unhandled_irq
  .weak DMA1_Channel3_2_IRQHandler
  .thumb_set DMA1_Channel3_2_IRQHandler, mq_unhandled_irq
  .weak DMA1_Channel5_4_IRQHandler
  .thumb_set DMA1_Channel5_4_IRQHandler, mq_unhandled_irq
  .weak ADC1_CMP_IRQHandler
  .thumb_set ADC1_CMP_IRQHandler, mq_unhandled_irq
  .weak TMR1_BRK_OVF_TRG_HALL_IRQHandler
  .thumb_set TMR1_BRK_OVF_TRG_HALL_IRQHandler, mq_unhandled_irq
  .weak TMR1_CH_IRQHandler
  .thumb_set TMR1_CH_IRQHandler, mq_unhandled_irq
  .weak TMR3_GLOBAL_IRQHandler
  .thumb_set TMR3_GLOBAL_IRQHandler, mq_unhandled_irq
  .weak TMR6_GLOBAL_IRQHandler
  .thumb_set TMR6_GLOBAL_IRQHandler, mq_unhandled_irq
  .weak TMR14_GLOBAL_IRQHandler
  .thumb_set TMR14_GLOBAL_IRQHandler, mq_unhandled_irq
  .weak TMR15_GLOBAL_IRQHandler
  .thumb_set TMR15_GLOBAL_IRQHandler, mq_unhandled_irq
  .weak TMR16_GLOBAL_IRQHandler
  .thumb_set TMR16_GLOBAL_IRQHandler, mq_unhandled_irq
  .weak TMR17_GLOBAL_IRQHandler
  .thumb_set TMR17_GLOBAL_IRQHandler, mq_unhandled_irq
  .weak I2C1_EVT_IRQHandler
  .thumb_set I2C1_EVT_IRQHandler, mq_unhandled_irq
  .weak I2C1_ERR_IRQHandler
  .thumb_set I2C1_ERR_IRQHandler, mq_unhandled_irq
  .weak I2C2_EVT_IRQHandler
  .thumb_set I2C2_EVT_IRQHandler, mq_unhandled_irq
  .weak I2C2_ERR_IRQHandler
  .thumb_set I2C2_ERR_IRQHandler, mq_unhandled_irq
  .weak SPI1_IRQHandler
  .thumb_set SPI1_IRQHandler, mq_unhandled_irq
  .weak SPI2_IRQHandler
  .thumb_set SPI2_IRQHandler, mq_unhandled_irq
  .weak USART1_IRQHandler
  .thumb_set USART1_IRQHandler, mq_unhandled_irq
  .weak USART2_IRQHandler
  .thumb_set USART2_IRQHandler, mq_unhandled_irq
  .weak ERTCAlarm_IRQHandler
  .thumb_set ERTCAlarm_IRQHandler, mq_unhandled_irq
