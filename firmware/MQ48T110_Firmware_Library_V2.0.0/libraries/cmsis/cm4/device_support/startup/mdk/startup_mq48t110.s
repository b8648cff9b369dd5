; **************************************************************************
; @file     startup_mq48t110.s
; @brief    start-up code of the mq48t110 for the arm compiler
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
; amount of stack and heap, in bytes
Stack_Size      EQU     0x00000400

                AREA    STACK, NOINIT, READWRITE, ALIGN=3
Stack_Mem       SPACE   Stack_Size
__initial_sp

Heap_Size       EQU     0x00000200

                AREA    HEAP, NOINIT, READWRITE, ALIGN=3
__heap_base
Heap_Mem        SPACE   Heap_Size
__heap_limit

                PRESERVE8
                THUMB

; the vector table at address 0
                AREA    RESET, DATA, READONLY
                EXPORT  MQ_Vectors

MQ_Vectors      DCD     __initial_sp
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


                AREA    |.text|, CODE, READONLY

; the reset entry: SystemInit, then the c library set-up that calls main
Reset_Handler   PROC
                EXPORT  Reset_Handler             [WEAK]
                IMPORT  __main
                IMPORT  SystemInit
                LDR     R0, =SystemInit
                BLX     R0
                LDR     R0, =__main
                BX      R0
                ENDP

; exceptions and interrupts without a handler of their own stop here
MQ_Unhandled    PROC
                EXPORT  NMI_Handler                      [WEAK]
                EXPORT  HardFault_Handler                [WEAK]
                EXPORT  MemManage_Handler                [WEAK]
                EXPORT  BusFault_Handler                 [WEAK]
                EXPORT  UsageFault_Handler               [WEAK]
                EXPORT  SVC_Handler                      [WEAK]
                EXPORT  DebugMon_Handler                 [WEAK]
                EXPORT  PendSV_Handler                   [WEAK]
                EXPORT  SysTick_Handler                  [WEAK]
                EXPORT  WWDT_IRQHandler                  [WEAK]
                EXPORT  PVM_IRQHandler                   [WEAK]
                EXPORT  ERTC_IRQHandler                  [WEAK]
                EXPORT  FLASH_IRQHandler                 [WEAK]
                EXPORT  CRM_IRQHandler                   [WEAK]
                EXPORT  EXINT1_0_IRQHandler              [WEAK]
                EXPORT  EXINT3_2_IRQHandler              [WEAK]
                EXPORT  EXINT15_4_IRQHandler             [WEAK]
                EXPORT  DMA1_Channel1_IRQHandler         [WEAK]
                EXPORT  DMA1_Channel3_2_IRQHandler       [WEAK]
                EXPORT  DMA1_Channel5_4_IRQHandler       [WEAK]
                EXPORT  ADC1_CMP_IRQHandler              [WEAK]
                EXPORT  TMR1_BRK_OVF_TRG_HALL_IRQHandler [WEAK]
                EXPORT  TMR1_CH_IRQHandler               [WEAK]
                EXPORT  TMR3_GLOBAL_IRQHandler           [WEAK]
                EXPORT  TMR6_GLOBAL_IRQHandler           [WEAK]
                EXPORT  TMR14_GLOBAL_IRQHandler          [WEAK]
                EXPORT  TMR15_GLOBAL_IRQHandler          [WEAK]
                EXPORT  TMR16_GLOBAL_IRQHandler          [WEAK]
                EXPORT  TMR17_GLOBAL_IRQHandler          [WEAK]
                EXPORT  I2C1_EVT_IRQHandler              [WEAK]
                EXPORT  I2C1_ERR_IRQHandler              [WEAK]
                EXPORT  I2C2_EVT_IRQHandler              [WEAK]
                EXPORT  I2C2_ERR_IRQHandler              [WEAK]
                EXPORT  SPI1_IRQHandler                  [WEAK]
                EXPORT  SPI2_IRQHandler                  [WEAK]
                EXPORT  USART1_IRQHandler                [WEAK]
                EXPORT  USART2_IRQHandler                [WEAK]
                EXPORT  ERTCAlarm_IRQHandler             [WEAK]
NMI_Handler
HardFault_Handler
MemManage_Handler
BusFault_Handler
UsageFault_Handler
SVC_Handler
DebugMon_Handler
PendSV_Handler
SysTick_Handler
WWDT_IRQHandler
PVM_IRQHandler
ERTC_IRQHandler
FLASH_IRQHandler
CRM_IRQHandler
EXINT1_0_IRQHandler
EXINT3_2_IRQHandler
EXINT15_4_IRQHandler
DMA1_Channel1_IRQHandler
DMA1_Channel3_2_IRQHandler
DMA1_Channel5_4_IRQHandler
ADC1_CMP_IRQHandler
TMR1_BRK_OVF_TRG_HALL_IRQHandler
TMR1_CH_IRQHandler
TMR3_GLOBAL_IRQHandler
TMR6_GLOBAL_IRQHandler
TMR14_GLOBAL_IRQHandler
TMR15_GLOBAL_IRQHandler
TMR16_GLOBAL_IRQHandler
TMR17_GLOBAL_IRQHandler
I2C1_EVT_IRQHandler
I2C1_ERR_IRQHandler
I2C2_EVT_IRQHandler
I2C2_ERR_IRQHandler
SPI1_IRQHandler
SPI2_IRQHandler
USART1_IRQHandler
USART2_IRQHandler
ERTCAlarm_IRQHandler
                B       .
                ENDP

                ALIGN

; the stack and heap for the c library
                IF      :DEF:__MICROLIB
                EXPORT  __initial_sp
                EXPORT  __heap_base
                EXPORT  __heap_limit
                ELSE
                IMPORT  __use_two_region_memory
                EXPORT  __user_initial_stackheap

__user_initial_stackheap
                LDR     R0, = Heap_Mem
                LDR     R1, =(Stack_Mem + Stack_Size)
                LDR     R2, = (Heap_Mem +  Heap_Size)
                LDR     R3, = Stack_Mem
                BX      LR

                ALIGN
                ENDIF

                END
