// Byte streams: .cstring with its escapes, .stream with LEB128 integers, and
// .encode, which sends a stream to a section of its own.
#include <string>

#include "directives/data_internal.h"
#include "directives/directives.h"
#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/driver.h"
#include "expr/symbols.h"

namespace {

bool is_octal(char c) { return c >= '0' && c <= '7'; }

// The byte of a one-letter escape, or -1.
int simple_escape(char c) {
  switch (c) {
    case '\\': return 0x5C;
    case 'a': return 0x07;
    case 'b': return 0x08;
    case 'f': return 0x0C;
    case 'n': return 0x0A;
    case 'r': return 0x0D;
    case 't': return 0x09;
    case 'v': return 0x0B;
    default: return -1;
  }
}

// The decoded text up to its first zero byte; false when a backslash ends it.
bool decode_cstring(const char *s, std::string *out) {
  for (size_t i = 0; s[i]; ++i) {
    if (s[i] != '\\') {
      out->push_back(s[i]);
      continue;
    }
    if (!s[i + 1]) return false;
    int byte = simple_escape(s[i + 1]);
    if (byte >= 0) {
      ++i;
    } else if (is_octal(s[i + 1]) && is_octal(s[i + 2]) && is_octal(s[i + 3])) {
      byte = ((s[i + 1] - '0') * 64 + (s[i + 2] - '0') * 8 + (s[i + 3] - '0')) & 0xFF;
      i += 3;
    } else {
      // Anything else drops the character behind the backslash.
      byte = static_cast<unsigned char>(s[i + 2]);
      i += 2;
    }
    if (byte == 0) break;
    out->push_back(static_cast<char>(byte));
  }
  return true;
}

// Signed LEB128 of the value taken as a signed 32-bit number.
std::string sleb128(int32_t v) {
  std::string bytes;
  for (;;) {
    uint8_t b = static_cast<uint8_t>(v & 0x7F);
    v >>= 7;
    const bool last = (v == 0 && !(b & 0x40)) || (v == -1 && (b & 0x40));
    if (!last) b |= 0x80;
    bytes.push_back(static_cast<char>(b));
    if (last) return bytes;
  }
}

void emit_bytes(instruct *ir, const std::string &bytes) {
  for (char c : bytes) data_emit(ir, 8, static_cast<uint8_t>(c));
}

void stream_element(instruct *ir, operand *op) {
  if (op->kind == OP_SCON) {
    const std::string text = op->value.v_str;
    if (pass1) {
      SCN_space((text.size() + 1) * 8);
    } else {
      emit_bytes(ir, text);
      data_emit(ir, 8, 0);
    }
    return;
  }
  if (is_relocatable(op->value)) {
    if (pass1) {
      SCN_space(32);
    } else {
      data_reloc(ir, op, 32);
      data_emit(ir, 32, data_u32(op));
    }
    return;
  }
  const std::string bytes = sleb128(static_cast<int32_t>(data_u32(op)));
  if (pass2)
    emit_bytes(ir, bytes);
  else
    SCN_space(op->value.v_known ? bytes.size() * 8 : 32);
}

// `define_labels` false leaves a pending label to the section that was current.
void stream(instruct *ir, bool define_labels) {
  SCN_align(8, 0);
  if (define_labels) LBL_define();
  for (operand *op = data_elements(ir); op; op = op->next)
    if (data_element_ok(op)) stream_element(ir, op);
}

}  // namespace

void GD_cstring(instruct *ir) {
  operand *op = data_elements(ir);
  if (!op) return;
  SCN_align(8, 0);
  LBL_define();
  for (; op; op = op->next) {
    if (op->kind != OP_SCON || !op->value.v_str) {
      if (data_element_ok(op)) error(ir->line, "E0004", "Invalid string");
      continue;
    }
    std::string text;
    if (!decode_cstring(op->value.v_str, &text)) {
      error(ir->line, "E0000", "Invalid .cstring format");
      continue;
    }
    if (pass1) {
      SCN_space((text.size() + 1) * 8);
    } else {
      emit_bytes(ir, text);
      data_emit(ir, 8, 0);
    }
  }
}

void GD1_stream(instruct *ir) {
  if (data_elements(ir)) stream(ir, true);
}
void GD2_stream(instruct *ir) {
  if (data_elements(ir)) stream(ir, true);
}

void GD_encode(instruct *ir) {
  if (!data_elements(ir)) return;
  LBL_flushbuf(ir->line);
  SCN_push();
  SCN_queue(SCN_KIND_DATA, ".encode");
  stream(ir, false);
  SCN_pop();
}
