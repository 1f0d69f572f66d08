"""The lines of the 16-bit Thumb golden files, by architecture and group.

E(zq): a line that the reference tools read as it is. llvm=/gnu= give them
their own spelling; value= (halfwords) with note= marks a deliberate
difference from both.
"""


class E:
    def __init__(self, zq, llvm=None, gnu=None, value=None, note=None):
        self.zq = zq
        self.llvm = llvm or zq
        self.gnu = gnu or self.llvm
        self.value = value
        self.note = note


def branch(zq, mnemonic, offset):
    """A branch by a plain offset: llvm-mc reads #offset from pc + 4, GNU as
    an address, written here from the location counter."""
    return E('%-7s %d' % (mnemonic.upper(), offset), '%s #%d' % (mnemonic, offset),
             '%s .%+d' % (mnemonic, offset + 4))


MOVS_LOW = 'MOVS of two low registers is ADDS Rd, Rs, #0'

HEADS = {
    'dp': 'ADD, SUB with the swap of a negative immediate, ALU operations, shifts, CMP, MOV.',
    'ldst': 'Loads and stores: register and immediate offsets, SP and PC bases.',
    'ldm': 'LDMIA, STMIA with their write-back rules, PUSH and POP.',
    'branch': 'Branches by plain offsets, BX and BLX of registers, SWI, BKPT, NOP.',
    'v6': 'The v6 additions: extends, byte reversals, CPY, CPS, BLX.',
    'old': 'Old syntax in .state16 on v6-M: ADD of two low registers as three, MOV as ADDS, NOP.',
}

DP = [
    E('ADDS    R0, #1', 'adds r0, #1'),
    E('ADDS    R7, #255', 'adds r7, #255'),
    E('ADDS    R0, #-1', 'subs r0, #1'),
    E('SUBS    R1, #-255', 'adds r1, #255'),
    E('SUBS    R2, #0', 'subs r2, #0'),
    E('ADD     SP, #508', 'add sp, #508'),
    E('ADD     SP, #-508', 'sub sp, #508'),
    E('ADD     SP, #0', 'add sp, #0'),
    E('ADD     R0, R8', 'add r0, r8'),
    E('ADD     R8, R0', 'add r8, r0'),
    E('ADD     R9, R10', 'add r9, r10'),
    E('ADD     SP, R1', 'add sp, r1'),
    E('ADD     R0, SP', 'add r0, sp'),
    E('ADD     R0, PC, #1020', 'adr r0, #1020', 'add r0, pc, #1020'),
    E('ADD     R7, SP, #4', 'add r7, sp, #4'),
    E('ADDS    R0, R1, R2', 'adds r0, r1, r2'),
    E('ADDS    R7, R6, #7', 'adds r7, r6, #7'),
    E('SUBS    R0, R1, R2', 'subs r0, r1, r2'),
    E('SUBS    R5, R6, #3', 'subs r5, r6, #3'),
    E('ANDS    R0, R1', 'ands r0, r1'),
    E('EORS    R2, R3', 'eors r2, r3'),
    E('ADCS    R4, R5', 'adcs r4, r5'),
    E('SBCS    R6, R7', 'sbcs r6, r7'),
    E('ORRS    R0, R7', 'orrs r0, r7'),
    E('BICS    R7, R0', 'bics r7, r0'),
    E('MVNS    R1, R2', 'mvns r1, r2'),
    E('RSBS    R3, R4, #0', 'rsbs r3, r4, #0'),
    E('RORS    R5, R6', 'rors r5, r6'),
    E('TST     R0, R1', 'tst r0, r1'),
    E('CMN     R2, R3', 'cmn r2, r3'),
    E('MULS    R0, R1, R0', 'muls r0, r1, r0'),
    E('ANDS    R0, R1, R0', 'ands r0, r1'),
    E('LSLS    R0, R1', 'lsls r0, r1'),
    E('LSRS    R2, R3', 'lsrs r2, r3'),
    E('ASRS    R4, R5', 'asrs r4, r5'),
    E('LSLS    R0, R1, #0', 'lsls r0, r1, #0'),
    E('LSLS    R0, R1, #31', 'lsls r0, r1, #31'),
    E('LSRS    R0, R1, #1', 'lsrs r0, r1, #1'),
    E('LSRS    R0, R1, #32', 'lsrs r0, r1, #32'),
    E('ASRS    R7, R6, #32', 'asrs r7, r6, #32'),
    E('ASRS    R7, R6, #17', 'asrs r7, r6, #17'),
    E('CMP     R0, R1', 'cmp r0, r1'),
    E('CMP     R0, R8', 'cmp r0, r8'),
    E('CMP     R9, R1', 'cmp r9, r1'),
    E('CMP     R7, #255', 'cmp r7, #255'),
    E('MOVS    R0, #0', 'movs r0, #0'),
    E('MOVS    R5, #200', 'movs r5, #200'),
    E('MOVS    R0, R1', 'movs r0, r1', value=[0x1C08], note=MOVS_LOW),
    E('MOV     R8, R8', 'mov r8, r8'),
    E('MOV     R0, R9', 'mov r0, r9'),
    E('MOV     PC, LR', 'mov pc, lr'),
]

LDST = [
    E('LDR     R0, [R1, R2]', 'ldr r0, [r1, r2]'),
    E('STR     R7, [R6, R5]', 'str r7, [r6, r5]'),
    E('LDRB    R0, [R1, R2]', 'ldrb r0, [r1, r2]'),
    E('STRB    R3, [R4, R5]', 'strb r3, [r4, r5]'),
    E('LDRH    R0, [R1, R2]', 'ldrh r0, [r1, r2]'),
    E('STRH    R3, [R4, R5]', 'strh r3, [r4, r5]'),
    E('LDRSB   R0, [R1, R2]', 'ldrsb r0, [r1, r2]'),
    E('LDRSH   R3, [R4, R5]', 'ldrsh r3, [r4, r5]'),
    E('LDR     R0, [R1]', 'ldr r0, [r1]'),
    E('LDR     R0, [R1, #4]', 'ldr r0, [r1, #4]'),
    E('STR     R2, [R3, #124]', 'str r2, [r3, #124]'),
    E('LDRB    R0, [R1]', 'ldrb r0, [r1]'),
    E('LDRB    R0, [R1, #31]', 'ldrb r0, [r1, #31]'),
    E('STRB    R4, [R5, #1]', 'strb r4, [r5, #1]'),
    E('LDRH    R0, [R1]', 'ldrh r0, [r1]'),
    E('LDRH    R0, [R1, #62]', 'ldrh r0, [r1, #62]'),
    E('STRH    R6, [R7, #2]', 'strh r6, [r7, #2]'),
    E('LDR     R0, [SP]', 'ldr r0, [sp]'),
    E('LDR     R1, [SP, #1020]', 'ldr r1, [sp, #1020]'),
    E('STR     R7, [SP, #4]', 'str r7, [sp, #4]'),
    E('LDR     R2, [PC, #1020]', 'ldr r2, [pc, #1020]'),
    E('LDR     R3, [PC]', 'ldr r3, [pc, #0]'),
]

LDM = [
    E('LDMIA   R0, {R0, R1}', 'ldm r0, {r0, r1}'),
    E('LDMIA   R0!, {R1, R2}', 'ldm r0!, {r1, r2}'),
    E('LDM     R7!, {R0-R6}', 'ldm r7!, {r0-r6}'),
    E('LDMFD   R1!, {R0}', 'ldm r1!, {r0}'),
    E('STMIA   R0!, {R0, R1}', 'stm r0!, {r0, r1}'),
    E('STMEA   R2!, {R0-R7}', 'stm r2!, {r0-r7}'),
    E('STM     R3!, {R4}', 'stm r3!, {r4}'),
    E('PUSH    {R0}', 'push {r0}'),
    E('PUSH    {R0-R7, LR}', 'push {r0-r7, lr}'),
    E('PUSH    {LR}', 'push {lr}'),
    E('POP     {R0, PC}', 'pop {r0, pc}'),
    E('POP     {R1-R3}', 'pop {r1-r3}'),
    E('POP     {PC}', 'pop {pc}'),
]

BRANCH = [
    branch('b', 'b', 0), branch('b', 'b', 4), branch('b', 'b', -4), branch('b', 'b', 2046),
    branch('b', 'b', -2048),
    branch('b', 'beq', 0), branch('b', 'bne', 254), branch('b', 'bcs', -256), branch('b', 'bcc', 2),
    branch('b', 'bmi', -2), branch('b', 'bpl', 100), branch('b', 'bvs', -100), branch('b', 'bvc', 16),
    branch('b', 'bhi', 32), branch('b', 'bls', 64), branch('b', 'bge', 128), branch('b', 'blt', -128),
    branch('b', 'bgt', 8), branch('b', 'ble', -8),
    branch('b', 'bl', 0), branch('b', 'bl', 0x100), branch('b', 'bl', -4), branch('b', 'bl', 4194302),
    branch('b', 'bl', -4194304),
    E('BX      LR', 'bx lr'),
    E('BX      R0', 'bx r0'),
    E('BX      PC', 'bx pc'),
    E('BX      R9', 'bx r9'),
    E('SVC     #0', 'svc #0'),
    E('SVC     #255', 'svc #255'),
    E('NOP', 'mov r8, r8'),
]

V6 = [
    E('SXTB    R0, R1', 'sxtb r0, r1'),
    E('SXTH    R2, R3', 'sxth r2, r3'),
    E('UXTB    R4, R5', 'uxtb r4, r5'),
    E('UXTH    R6, R7', 'uxth r6, r7'),
    E('REV     R0, R7', 'rev r0, r7'),
    E('REV16   R1, R6', 'rev16 r1, r6'),
    E('REVSH   R2, R5', 'revsh r2, r5'),
    E('MOV     R0, R1', 'mov r0, r1'),
    E('CPY     R2, R3', 'mov r2, r3'),
    E('MOV     R8, R1', 'mov r8, r1'),
    E('CPSIE   I', 'cpsie i'),
    E('CPSID   F', 'cpsid f'),
    E('CPSIE   aif', 'cpsie aif'),
    E('CPSID   IA', 'cpsid ai'),
    E('BKPT    #0', 'bkpt #0'),
    E('BKPT    #255', 'bkpt #255'),
    E('BLX     R3', 'blx r3'),
    E('BLX     LR', 'blx lr'),
    branch('b', 'blx', 0x100), branch('b', 'blx', -4), branch('b', 'blx', 4194300),
    E('MULS    R1, R1', 'muls r1, r1, r1'),
]

OLD = [
    E('ADD     R0, R1', 'adds r0, r0, r1'),
    E('ADD     R7, R0', 'adds r7, r7, r0'),
    E('ADD     R0, R8', 'add r0, r8'),
    E('ADD     R0, R1, R2', 'adds r0, r1, r2'),
    E('ADD     R0, #-4', 'subs r0, #4'),
    E('SUB     R0, R1, #7', 'subs r0, r1, #7'),
    E('MOV     R0, R1', 'movs r0, r1', value=[0x1C08], note=MOVS_LOW),
    E('MOV     R0, #17', 'movs r0, #17'),
    E('LSL     R0, R1', 'lsls r0, r1'),
    E('LSR     R0, R1, #32', 'lsrs r0, r1, #32'),
    E('MUL     R0, R1', 'muls r0, r1, r0'),
    E('CPY     R0, R1', 'mov r0, r1'),
    E('REV     R0, R1', 'rev r0, r1'),
    E('UXTB    R0, R1', 'uxtb r0, r1'),
    E('CPSID   I', 'cpsid i'),
    E('NOP', 'mov r8, r8'),
    E('LDMIA   R0!, {R1}', 'ldm r0!, {r1}'),
    E('PUSH    {R4, LR}', 'push {r4, lr}'),
    E('SWI     #1', 'svc #1'),
    E('BKPT    #1', 'bkpt #1'),
    E('BLX     R1', 'blx r1'),
    branch('b', 'b', 20), branch('b', 'bgt', -20), branch('b', 'bl', 0x1000),
]

FILES = {
    ('v4', 'dp'): DP,
    ('v4', 'ldst'): LDST,
    ('v4', 'ldm'): LDM,
    ('v4', 'branch'): BRANCH,
    ('v6', 'dp'): DP,
    ('v6', 'ldst'): LDST,
    ('v6', 'v6'): V6,
    ('v6m', 'old'): OLD,
}
