// One statement's road: IR_build reads it, IR_process acts on it, IR_drop
// releases it.
#include <cstdlib>

#include <cstring>
#include <vector>

#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/directive_ids.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "driver/pipeline.h"
#include "expr/symbols.h"
#include "listing/listing.h"
#include "source/lexer.h"
#include "source/macro.h"
#include "source/ophash.h"
#include "support/memory.h"
#include "target/arm/trg.h"


namespace {

// The text that curline's tokens are read from.
const char *current_text(const linebuf *line) {
  if (line == curline && inbuf) return inbuf;
  if (!line) return nullptr;
  return line->expanded_text ? line->expanded_text : line->text;
}

// A colon that touches the name in front of it, on the same line.
bool colon_touches_label(const token *label, const token *colon) {
  if (colon->kind != TK_COLON || colon->line != label->line || colon->column <= 0) return false;
  const char *text = current_text(colon->line);
  if (!text) return false;
  const char before = text[colon->column - 1];
  return before != ' ' && before != '\t';
}

// Directives that --preprocess passes over: they only steer the listing.
bool skipped_when_preprocessing(int32_t id) {
  switch (id) {
    case DIR_EMSG: case DIR_TITLE: case DIR_OPTION: case DIR_TAB: case DIR_WIDTH:
    case DIR_LENGTH: case DIR_PAGE: case DIR_NOLIST: case DIR_DRNOLIST:
    case DIR_FCNOLIST: case DIR_MNOLIST: case DIR_SSLIST:
      return true;
    default:
      return false;
  }
}

// Reads on to the first token that is not a line end; false at the end of input.
bool skip_blank_lines() {
  do {
    next_token();
    if (curtk->kind == TK_EOL && endfile) return false;
  } while (curtk->kind == TK_EOL);
  return !endfile;
}

// Released statement records, kept for reuse. Never destroyed: the records
// stay reachable to the end, where the process exit reclaims them.
std::vector<instruct *> &spare_records = *new std::vector<instruct *>;

}  // namespace

instruct *IR_alloc(uint16_t kind, const void *record, linebuf *line) {
  instruct *ir;
  if (spare_records.empty()) {
    ir = static_cast<instruct *>(safecalloc(1, sizeof(instruct)));
  } else {
    ir = spare_records.back();
    spare_records.pop_back();
    std::memset(static_cast<void *>(ir), 0, sizeof *ir);
  }
  ir->kind = kind;
  ir->record = record;
  ir->line = line;
  IOR_clear(&ir->ior);
  return ir;
}

instruct *IR_build() {
  for (;;) {
    if (!skip_blank_lines()) return nullptr;

    if (curtk->column == 0) {
      if (curtk->kind == TK_IDENT) {
        LBL_save();
        token *label = curtk;
        linebuf *label_line = label->line;
        get_token();
        if (colon_touches_label(label, curtk)) next_token();
        LEX_droptkn(label);
        if (curtk->kind == TK_EOL) return nullptr;  // the label waits for the next statement
        if (label_line) label_line->flags &= static_cast<uint16_t>(~LNF_LABEL);
      } else if (curtk->kind != TK_EOL && curtk->kind != TK_MULT && curtk->kind != TK_SEMICOLON) {
        error(curtk->line, "E0003",
              "Only labels and comments may begin in the first column. "
              "Make sure that the label name is not a reserved keyword.");
        token *first = curtk;
        get_token();
        if (curtk->kind == TK_EOL) {
          LEX_droptkn(first);
          return nullptr;
        }
        unget_token(&curtk);
        curtk = first;
      }
    }

    lookup_opcode();
    if (curtk->kind == IR_MACRO) {
      MAC_invoke(curtk->value.op);
      continue;  // a macro call is no statement of its own
    }
    if (curtk->kind == IR_DIRECTIVE) return DIR_parse();
    return IR_parse();
  }
}

instruct *IR_parse() {
  // A label on an instruction names the aligned address.
  SCN_align(cur_state == 0 ? 32 : 16, TRG_fill_pattern(cur_state));
  if (LBL_current) LBL_define();

  instruct *ir = TRG_parse();
  if (!ir) return nullptr;

  // Read the next statement's first token now, to see whether it continues
  // this one as a parallel statement.
  if (curtk && curtk->kind == TK_EOL && !endfile) {
    do {
      next_token();
    } while (curtk->kind == TK_EOL && !endfile);
    if (curtk->kind != TK_PARALLEL && !(curtk->kind == TK_EOL && endfile)) LST_mvlnbuf(LST_FIRST);
    unget_token(&curtk);
  }
  return ir;
}

instruct *DIR_parse() {
  const dir_oprec *row = curtk->value.op->dir();
  instruct *ir = IR_alloc(IR_DIRECTIVE, row, curtk->line);
  row->parse(ir);
  return ir;
}

void IR_process(instruct *ir) {
  if (!ir) return;
  instlen = 0;
  if (ir->kind == IR_DIRECTIVE) {
    const dir_oprec *row = ir->dir();
    if (opt_on(OPT_PREPROCESS) && skipped_when_preprocessing(row->id)) return;
    dir_handler handler = pass1 ? row->pass1 : row->pass2;
    if (handler) handler(ir);
    return;
  }
  SCN_asm_debug(ir);
  TRG_encode(ir);
  if (pass1) SCN_space(static_cast<unsigned long>(instlen) * 8);
}

void IR_drop(instruct *ir) {
  LEX_droptkn(curtk);
  curtk = nullptr;
  if (!ir) return;
  LST_dump();
  IR_free(ir);
}

void IR_free(instruct *ir) {
  if (!ir) return;
  for (operand *&slot : ir->oprnds) {
    if (!slot) continue;
    IR_free_oprnd(slot);
    slot = nullptr;
  }
  spare_records.push_back(ir);
}

int IR_getline() {
  if (curtk && curtk->kind != TK_EOL) LEX_skip_to_eol();
  return skip_blank_lines() ? 1 : 0;
}
