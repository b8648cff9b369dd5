; **************************************************************************
; @file     startup_mq48t110.s
; @brief    start-up code of the mq48t110 for the iar toolchain
; *************************************************************************
;                       Copyright notice & Disclaimer
;
; The software and its documentation are provided by Velmora "as is" to
; help customers develop products with MQ48 microcontrollers. Velmora
; grants the right to use, copy and modify this code in products built
; with MQ48 microcontrollers. The software comes without warranty of any
; kind, express or implied, including fitness for a particular purpose;
; Velmora is not liable for any damage arising from its use.
; *************************************************************************
;
; the stack (CSTACK) and heap sizes are set in the linker configuration (.icf)

        MODULE  ?cstartup

        SECTION CSTACK:DATA:NOROOT(3)

        SECTION .intvec:CODE:NOROOT(2)

        EXTERN  __iar_program_start
        EXTERN  SystemInit
        PUBLIC  __vector_table

        DATA
__vector_table
        DCD     sfe(CSTACK)
        DCD     Reset_Handler
        DCD     NMI_Handler
        DCD     HardFault_Handler
        DCD     MemManage_Handler
        DCD     BusFault_Handler
        DCD     UsageFault_Handler
        DCD     0
        DCD     0
        DCD     0
        DCD     0
        DCD     SVC_Handler
        DCD     DebugMon_Handler
        DCD     0
        DCD     PendSV_Handler
        DCD     SysTick_Handler
        DCD     WWDT_IRQHandler                  ; 0
        DCD     PVM_IRQHandler                   ; 1
        DCD     ERTC_IRQHandler                  ; 2
        DCD     FLASH_IRQHandler                 ; 3
        DCD     CRM_IRQHandler                   ; 4
        DCD     EXINT1_0_IRQHandler              ; 5
        DCD     EXINT3_2_IRQHandler              ; 6
        DCD     EXINT15_4_IRQHandler             ; 7
        DCD     DMA1_Channel1_IRQHandler         ; 8
        DCD     DMA1_Channel3_2_IRQHandler       ; 9
        DCD     DMA1_Channel5_4_IRQHandler       ; 10
        DCD     ADC1_CMP_IRQHandler              ; 11
        DCD     TMR1_BRK_OVF_TRG_HALL_IRQHandler ; 12
        DCD     TMR1_CH_IRQHandler               ; 13
        DCD     TMR3_GLOBAL_IRQHandler           ; 14
        DCD     TMR6_GLOBAL_IRQHandler           ; 15
        DCD     TMR14_GLOBAL_IRQHandler          ; 16
        DCD     TMR15_GLOBAL_IRQHandler          ; 17
        DCD     TMR16_GLOBAL_IRQHandler          ; 18
        DCD     TMR17_GLOBAL_IRQHandler          ; 19
        DCD     I2C1_EVT_IRQHandler              ; 20
        DCD     I2C1_ERR_IRQHandler              ; 21
        DCD     I2C2_EVT_IRQHandler              ; 22
        DCD     I2C2_ERR_IRQHandler              ; 23
        DCD     SPI1_IRQHandler                  ; 24
        DCD     SPI2_IRQHandler                  ; 25
        DCD     USART1_IRQHandler                ; 26
        DCD     USART2_IRQHandler                ; 27
        DCD     ERTCAlarm_IRQHandler             ; 28

        THUMB

; the reset entry: SystemInit, then the c library set-up that calls main
        PUBWEAK Reset_Handler
        SECTION .text:CODE:REORDER:NOROOT(2)
Reset_Handler
        LDR     R0, =SystemInit
        BLX     R0
        LDR     R0, =__iar_program_start
        BX      R0

        PUBWEAK NMI_Handler
        SECTION .text:CODE:REORDER:NOROOT(1)
NMI_Handler
        B NMI_Handler

        PUBWEAK HardFault_Handler
        SECTION .text:CODE:REORDER:NOROOT(1)
HardFault_Handler
        B HardFault_Handler

        PUBWEAK MemManage_Handler
        SECTION .text:CODE:REORDER:NOROOT(1)
MemManage_Handler
        B MemManage_Handler

        PUBWEAK BusFault_Handler
        SECTION .text:CODE:REORDER:NOROOT(1)
BusFault_Handler
        B BusFault_Handler

        PUBWEAK UsageFault_Handler
        SECTION .text:CODE:REORDER:NOROOT(1)
UsageFault_Handler
        B UsageFault_Handler

        PUBWEAK SVC_Handler
        SECTION .text:CODE:REORDER:NOROOT(1)
SVC_Handler
        B SVC_Handler

        PUBWEAK DebugMon_Handler
        SECTION .text:CODE:REORDER:NOROOT(1)
DebugMon_Handler
        B DebugMon_Handler

        PUBWEAK PendSV_Handler
        SECTION .text:CODE:REORDER:NOROOT(1)
PendSV_Handler
        B PendSV_Handler

        PUBWEAK SysTick_Handler
        SECTION .text:CODE:REORDER:NOROOT(1)
SysTick_Handler
        B SysTick_Handler

        PUBWEAK WWDT_IRQHandler
        SECTION .text:CODE:REORDER:NOROOT(1)
WWDT_IRQHandler
        B WWDT_IRQHandler

        PUBWEAK PVM_IRQHandler
        SECTION .text:CODE:REORDER:NOROOT(1)
PVM_IRQHandler
        B PVM_IRQHandler

        PUBWEAK ERTC_IRQHandler
        SECTION .text:CODE:REORDER:NOROOT(1)
ERTC_IRQHandler
        B ERTC_IRQHandler

        PUBWEAK FLASH_IRQHandler
        SECTION .text:CODE:REORDER:NOROOT(1)
FLASH_IRQHandler
        B FLASH_IRQHandler

        PUBWEAK CRM_IRQHandler
        SECTION .text:CODE:REORDER:NOROOT(1)
CRM_IRQHandler
        B CRM_IRQHandler

        PUBWEAK EXINT1_0_IRQHandler
        SECTION .text:CODE:REORDER:NOROOT(1)
EXINT1_0_IRQHandler
        B EXINT1_0_IRQHandler

        PUBWEAK EXINT3_2_IRQHandler
        SECTION .text:CODE:REORDER:NOROOT(1)
EXINT3_2_IRQHandler
        B EXINT3_2_IRQHandler

        PUBWEAK EXINT15_4_IRQHandler
        SECTION .text:CODE:REORDER:NOROOT(1)
EXINT15_4_IRQHandler
        B EXINT15_4_IRQHandler

        PUBWEAK DMA1_Channel1_IRQHandler
        SECTION .text:CODE:REORDER:NOROOT(1)
DMA1_Channel1_IRQHandler
        B DMA1_Channel1_IRQHandler

        PUBWEAK DMA1_Channel3_2_IRQHandler
        SECTION .text:CODE:REORDER:NOROOT(1)
DMA1_Channel3_2_IRQHandler
        B DMA1_Channel3_2_IRQHandler

        PUBWEAK DMA1_Channel5_4_IRQHandler
        SECTION .text:CODE:REORDER:NOROOT(1)
DMA1_Channel5_4_IRQHandler
        B DMA1_Channel5_4_IRQHandler

        PUBWEAK ADC1_CMP_IRQHandler
        SECTION .text:CODE:REORDER:NOROOT(1)
ADC1_CMP_IRQHandler
        B ADC1_CMP_IRQHandler

        PUBWEAK TMR1_BRK_OVF_TRG_HALL_IRQHandler
        SECTION .text:CODE:REORDER:NOROOT(1)
TMR1_BRK_OVF_TRG_HALL_IRQHandler
        B TMR1_BRK_OVF_TRG_HALL_IRQHandler

        PUBWEAK TMR1_CH_IRQHandler
        SECTION .text:CODE:REORDER:NOROOT(1)
TMR1_CH_IRQHandler
        B TMR1_CH_IRQHandler

        PUBWEAK TMR3_GLOBAL_IRQHandler
        SECTION .text:CODE:REORDER:NOROOT(1)
TMR3_GLOBAL_IRQHandler
        B TMR3_GLOBAL_IRQHandler

        PUBWEAK TMR6_GLOBAL_IRQHandler
        SECTION .text:CODE:REORDER:NOROOT(1)
TMR6_GLOBAL_IRQHandler
        B TMR6_GLOBAL_IRQHandler

        PUBWEAK TMR14_GLOBAL_IRQHandler
        SECTION .text:CODE:REORDER:NOROOT(1)
TMR14_GLOBAL_IRQHandler
        B TMR14_GLOBAL_IRQHandler

        PUBWEAK TMR15_GLOBAL_IRQHandler
        SECTION .text:CODE:REORDER:NOROOT(1)
TMR15_GLOBAL_IRQHandler
        B TMR15_GLOBAL_IRQHandler

        PUBWEAK TMR16_GLOBAL_IRQHandler
        SECTION .text:CODE:REORDER:NOROOT(1)
TMR16_GLOBAL_IRQHandler
        B TMR16_GLOBAL_IRQHandler

        PUBWEAK TMR17_GLOBAL_IRQHandler
        SECTION .text:CODE:REORDER:NOROOT(1)
TMR17_GLOBAL_IRQHandler
        B TMR17_GLOBAL_IRQHandler

        PUBWEAK I2C1_EVT_IRQHandler
        SECTION .text:CODE:REORDER:NOROOT(1)
I2C1_EVT_IRQHandler
        B I2C1_EVT_IRQHandler

        PUBWEAK I2C1_ERR_IRQHandler
        SECTION .text:CODE:REORDER:NOROOT(1)
I2C1_ERR_IRQHandler
        B I2C1_ERR_IRQHandler

        PUBWEAK I2C2_EVT_IRQHandler
        SECTION .text:CODE:REORDER:NOROOT(1)
I2C2_EVT_IRQHandler
        B I2C2_EVT_IRQHandler

        PUBWEAK I2C2_ERR_IRQHandler
        SECTION .text:CODE:REORDER:NOROOT(1)
I2C2_ERR_IRQHandler
        B I2C2_ERR_IRQHandler

        PUBWEAK SPI1_IRQHandler
        SECTION .text:CODE:REORDER:NOROOT(1)
SPI1_IRQHandler
        B SPI1_IRQHandler

        PUBWEAK SPI2_IRQHandler
        SECTION .text:CODE:REORDER:NOROOT(1)
SPI2_IRQHandler
        B SPI2_IRQHandler

        PUBWEAK USART1_IRQHandler
        SECTION .text:CODE:REORDER:NOROOT(1)
USART1_IRQHandler
        B USART1_IRQHandler

        PUBWEAK USART2_IRQHandler
        SECTION .text:CODE:REORDER:NOROOT(1)
USART2_IRQHandler
        B USART2_IRQHandler

        PUBWEAK ERTCAlarm_IRQHandler
        SECTION .text:CODE:REORDER:NOROOT(1)
ERTCAlarm_IRQHandler
        B ERTCAlarm_IRQHandler

        END
