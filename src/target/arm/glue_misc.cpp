// Small target hooks: trial encodings, the ABI tests, listing fill and the
// names that the internal dumps print.
#include <cstdio>

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "driver/records.h"
#include "target/arm/glue_pending.h"
#include "target/arm/trg.h"

namespace {

// --abi values.
constexpr long ABI_EABI = 1;

// Width of an operand kind's name in the dumps.
constexpr int OPNAME_WIDTH = 21;

struct kind_name {
  int kind;
  const char *name;
};

constexpr kind_name token_names[] = {
    {TK_REGISTER, "REGISTER "}, {TK_OPCODE_REST, "OPCODE SUFFIX "}, {TK_PARALLEL, "PARALLEL "},
    {TK_LOCLABEL, "LOCAL LABEL "}, {TK_DOTLABEL, "DOT LABEL "}, {0, nullptr},
};

constexpr kind_name operand_names[] = {
    {OP_CPREG, "OP_CPREG"},       {OP_REGLIST, "OP_REGLIST"},     {OP_SHIFTREGR, "OP_SHIFTREGR"},
    {OP_SHIFTREGI, "OP_SHIFTREGI"}, {OP_PSR, "OP_PSR"},           {OP_PSRF, "OP_PSRF"},
    {OP_CPID, "OP_CPID"},         {OP_DIRECT, "OP_DIRECT"},       {OP_INDIRECT, "OP_INDIRECT"},
    {OP_INDPREE, "OP_INDPREE"},   {OP_INDPRES, "OP_INDPRES"},     {OP_INDPOSTE, "OP_INDPOSTE"},
    {OP_INDPOSTS, "OP_INDPOSTS"}, {OP_ICON, "OP_ICON"},           {OP_SCON, "OP_SCON"},
    {OP_FCON, "OP_FCON"},         {OP_SYMBOL, "OP_SYMBOL"},       {OP_REGISTER, "OP_REGISTER"},
    {OP_LOCLABEL, "OP_LOCLABEL"}, {OP_STRUCT, "OP_STRUCT"},       {OP_UNION, "OP_UNION"},
    {OP_SUREF, "OP_SUREF"},       {OP_SUMEM, "OP_SUMEM"},         {OP_SSNAME, "OP_SSNAME"},
    {OP_SPC, "OP_SPC"},           {OP_DOTLABEL, "OP_DOTLABEL"},   {0, nullptr},
};

constexpr kind_name statement_names[] = {
    {IR_MNEMONIC, "MNEMONIC "}, {IR_DIRECTIVE, "DIRECTIVE "}, {IR_MACRO, "MACRO "},
    {IR_PARALLEL, "PARALLEL "}, {0, nullptr},
};

constexpr const char *register_names[] = {"R0", "R1", "R2",  "R3",  "R4",  "R5",  "R6",  "R7",
                                          "R8", "R9", "R10", "R11", "R12", "SP",  "LR",  "PC"};

const char *find_name(const kind_name *rows, int kind) {
  for (const kind_name *r = rows; r->name; ++r)
    if (r->kind == kind) return r->name;
  return nullptr;
}

// A trial encoding holds messages back; it only learns that there were some.
bool message_may_show() {
  if (output_error) return true;
  ++errors_or_warn;
  return false;
}

}  // namespace

void TRG_version_check() {}

void TRG_process_sect(const char *) {}

bool TRG_IOR_write() { return !suppress_output; }

bool TRG_warn() { return message_may_show(); }

bool TRG_error() { return message_may_show(); }

void TRG_delete_objflds() {
  if (ASSY_LST) myfputs("                    ", ASSY_LST);
}

const char *TRG_tkname(int kind) {
  const char *name = find_name(token_names, kind);
  return name ? name : "INVALID TOKEN TYPE ";
}

const char *TRG_opname(int kind) {
  static char padded[OPNAME_WIDTH + 1];
  const char *name = find_name(operand_names, kind);
  std::snprintf(padded, sizeof padded, "%-*s", OPNAME_WIDTH, name ? name : "INVALID OPERAND TYPE");
  return padded;
}

const char *TRG_irname(int kind) {
  const char *name = find_name(statement_names, kind);
  return name ? name : "INVALID INSTRUCTION TYPE ";
}

const char *TRG_regname(int reg) {
  constexpr int count = sizeof register_names / sizeof register_names[0];
  return reg >= 0 && reg < count ? register_names[reg] : "INVALID REGISTER ";
}

void TRG_dump_components(operand *op) {
  if (op && op->kind >= OP_CPREG && op->kind <= OP_INDPOSTS) std::printf("Write TRG_dump_components()!");
}

bool arm_eabi() { return opt_on(OPT_ABI) && global_opts->getnumarg(OPT_ABI, 0) == ABI_EABI; }

bool arm_zqabi() { return false; }

bool arm_zq_arm9_abi() { return false; }
