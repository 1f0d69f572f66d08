#pragma once
// The records that carry one statement from the lexer to the pass handlers.
#include <cstdint>
#include "directives/ior.h"
#include "expr/value.h"

struct ophashtbl;
struct obj_flds;
struct instruct;

// Token kinds; one-character kinds carry the character's code.
enum : uint16_t {
  TK_NULL = 0, TK_EOF = 1, TK_EOL = 2,
  TK_NOT = 33, TK_POUND = 35, TK_DOLLAR = 36, TK_PERCENT = 37, TK_AND = 38,
  TK_SQUOTE = 39, TK_LPAREN = 40, TK_RPAREN = 41, TK_MULT = 42, TK_PLUS = 43,
  TK_COMMA = 44, TK_MINUS = 45, TK_DOT = 46, TK_DIV = 47, TK_COLON = 58,
  TK_SEMICOLON = 59, TK_LT = 60, TK_ASSIGN = 61, TK_GT = 62, TK_QUEST = 63,
  TK_ATSIGN = 64, TK_LBRACKET = 91, TK_BACKSLASH = 92, TK_RBRACKET = 93,
  TK_XOR = 94, TK_LBRACE = 123, TK_OR = 124, TK_RBRACE = 125, TK_NOTB = 126,
  TK_ICON = 128, TK_CCON = 129, TK_SCON = 130, TK_FCON = 131, TK_IDENT = 132,
  TK_ADDRMOD = 140, TK_PLUSASG = 141, TK_PLUSPLUSASG = 142, TK_MINASG = 143,
  TK_MINMINASG = 144, TK_PLUSPLUS = 150, TK_MINMIN = 151, TK_LSHLEFT = 152,
  TK_LSHRIGHT = 153, TK_ASHLEFT = 154, TK_ASHRIGHT = 155, TK_ROT = 156,
  TK_INTRINSIC = 160, TK_UMINUS = 161, TK_UMULT = 162, TK_UAND = 163,
  TK_SCALE = 164, TK_ABS = 165, TK_HI = 166, TK_LO = 167,
  TK_EQ = 180, TK_NE = 181, TK_LE = 182, TK_GE = 183,
  TK_ANDAND = 190, TK_OROR = 191, TK_LOCLABEL = 200, TK_DOTLABEL = 210,
  TK_PARALLEL = 220, TK_REGISTER = 230, TK_STRUCT = 240, TK_UNION = 241,
  TK_SUREF = 242, TK_SUMEM = 243, TK_SPC = 250,
  TK_OPCODE_REST = 260,  // rest of an opcode word after the base mnemonic
};

// Statement kinds, also given to identifier tokens by lookup_opcode.
enum : uint16_t {
  IR_MNEMONIC = 202, IR_DIRECTIVE = 203, IR_MACRO = 204, IR_PARALLEL = 205,
};

struct linebuf;

struct token {
  uint16_t kind;
  union {
    INT128 ival;         // TK_ICON, TK_CCON
    char *sval;          // TK_IDENT, TK_SCON, TK_OPCODE_REST (owned)
    simul_fval *fval;    // TK_FCON (owned)
    ophashtbl *op;       // after lookup_opcode
  } value;
  int32_t column;        // index in the line text, which has no length limit
  uint32_t length;
  uint8_t usuffix;
  uint8_t lsuffix;
  uint8_t llsuffix;
  linebuf *line;
  token *next;
  char short_text[24];   // sval of a short string points here instead of the heap
};

struct linebuf {
  uint16_t flags;          // listing control bits; 64: a label was saved from this line
  char copy_letter;        // blank for the main source
  const char *file;        // shared by the lines of one file; lives to the end of the run
  uint32_t line_number;
  obj_flds *object;
  uint32_t length;
  char *text;
  char *source_text;       // same pointer as text
  char *expanded_text;     // null unless substitution changed the line
  char *messages[3];
  linebuf *next;
};

enum : uint16_t {
  OP_NONE = 0,
  OP_CPREG = 2, OP_REGLIST, OP_SHIFTREGR, OP_SHIFTREGI, OP_PSR, OP_PSRF, OP_CPID,
  OP_DIRECT, OP_INDIRECT, OP_INDPREE, OP_INDPRES, OP_INDPOSTE, OP_INDPOSTS,
  OP_INDOPT, OP_SREG, OP_VFPSYS, OP_DREG, OP_QREG, OP_DLIST, OP_QLIST, OP_CPSFLAGS,
  OP_MSYSREG, OP_APSRF,
  OP_ICON = 128, OP_SCON = 130, OP_FCON = 131, OP_SYMBOL = 132, OP_REGISTER = 133,
  OP_LOCLABEL = 201,
  OP_STRUCT = 600, OP_UNION = 601, OP_SUREF = 602, OP_SUMEM = 603,
  OP_SSNAME = 620, OP_SPC = 640, OP_DOTLABEL = 650,
};

// Attribute codes of NAME(expression) operands.
enum : uint16_t {
  ATTR_STACK_USAGE = 1, ATTR_SYM_SIZE = 2, ATTR_SYM_BLOCKED = 3,
  ATTR_SYM_PRESERVE = 4, ATTR_SYM_UPDATE = 5,
};

struct operand {
  uint16_t kind;
  uint16_t attribute;
  value_record value;
  operand *next;
  operand *prev;
  // Instruction operands (the target's parser fills these).
  uint16_t op_mods;     // bit 0 a trailing '^', bit 1 a trailing '!'; field mask of PSR kinds
  int16_t op_lane;      // -2 no index, -1 "[]", else the lane index
  uint8_t op_reg;       // register; first of a list; base of an address
  uint8_t op_reg2;      // last of a list; offset register of an address
  uint8_t op_shift;     // 0 LSL, 1 LSR, 2 ASR, 3 ROR, 4 RRX, 5 none
  uint8_t op_neg;       // the offset (register or value) is subtracted
};

constexpr int IR_MAX_SLOTS = 10;

struct dir_oprec;

struct instruct {
  uint16_t kind;
  const void *record;      // dir_oprec row for directives, mnemonic row for instructions
  operand *oprnds[IR_MAX_SLOTS];
  linebuf *line;
  IOR_STRUCT ior{{0, 0, 0, 0}, 0, {' '}};   // the statement's output bits
  // Instruction statements (the target's parser fills these).
  uint8_t ia_cond;         // condition code, 14 (always) when none is written
  uint32_t ia_flags;       // letters of the mnemonic's suffix; IT: the T/E groups
  char ia_prefix[3];       // prefix of a parallel add/subtract ("S", "UQ", ...), or empty
  uint32_t ia_errors;      // errors counted when the statement was read

  const dir_oprec *dir() const { return static_cast<const dir_oprec *>(record); }
};

using dir_handler = void (*)(instruct *);

struct dir_oprec {
  const char *name;        // upper case, with its leading dot
  int32_t id;
  dir_handler parse;
  dir_handler pass1;
  dir_handler pass2;
};

// Flags of dir_parse_state_t.
enum : uint32_t {
  DPS_OPTIONAL = 0x001, DPS_EXPR = 0x002, DPS_FLOAT = 0x004, DPS_CHAR = 0x008,
  DPS_STRING = 0x010, DPS_IDENT = 0x020, DPS_RAW = 0x040, DPS_SSNAME = 0x080,
  DPS_ABSINT = 0x100, DPS_TAG = 0x200, DPS_REG = 0x400, DPS_ATTR = 0x800,
};

struct dir_parse_state_t {
  uint32_t flags;
  uint32_t width;
};
