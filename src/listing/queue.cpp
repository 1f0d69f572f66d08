// The queue of lines in flight: one group of lines for each statement.
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <string>
#include <unordered_set>

#include "driver/diag.h"
#include "driver/driver.h"
#include "expr/symbols.h"
#include "listing/listing.h"
#include "source/conditional.h"
#include "source/copy.h"
#include "source/lexer.h"
#include "source/macro.h"
#include "support/memory.h"

uint32_t LST_control = 0xB000;
lst_group *curlst = nullptr;
lst_group *lastlst = nullptr;

namespace {

// Released groups, kept for reuse: every statement makes one.
lst_group *spare_groups = nullptr;

lst_group *new_group() {
  lst_group *g = spare_groups;
  if (g) {
    spare_groups = g->next;
    *g = lst_group{nullptr, nullptr, nullptr};
  } else {
    g = new lst_group{nullptr, nullptr, nullptr};
  }
  if (lastlst) lastlst->next = g;
  else curlst = g;
  lastlst = g;
  return g;
}

uint16_t new_line_flags() {
  if (include_point >= 0 && copytop >= include_point) return 30;
  if (MAC_lvl >= 0 || CLOOP_lvl >= 0) return (LST_control & LST_MLIST) ? 31 : 30;
  return 31;
}

const char *shared_file_name(const char *name) {
  static std::unordered_set<std::string> names;
  static const char *last = nullptr;
  if (!last || std::strcmp(last, name) != 0) last = names.emplace(name).first->c_str();
  return last;
}

// Released lines, kept for reuse: every source line makes one.
linebuf *spare_lines = nullptr;

linebuf *alloc_line() {
  linebuf *line = spare_lines;
  if (!line) return new linebuf{};
  spare_lines = line->next;
  *line = linebuf{};
  return line;
}

void free_line(linebuf *line) {
  for (pending_label *p = LBL_current; p; p = p->next)
    if (p->line == line) p->line = nullptr;
  if (inbuf && (inbuf == line->source_text || inbuf == line->expanded_text)) {
    inbuf = nullptr;
    inbuf_len = 0;
  }
  if (curline == line) curline = nullptr;
  if (line->object) LSTOBJ_free(line->object);
  if (line->text != line->source_text) std::free(line->text);
  std::free(line->source_text);
  if (line->expanded_text) std::free(line->expanded_text);
  for (char *m : line->messages)
    if (m) std::free(m);
  line->next = spare_lines;
  spare_lines = line;
}

}  // namespace

void LST_getln() {
  char *text = LEX_readln();
  if (!text) {
    curline = nullptr;
    return;
  }
  if (MAC_lvl < 0) ++f_lnum;
  linebuf *line = alloc_line();
  line->flags = new_line_flags();
  line->copy_letter = f_lchar;
  line->file = shared_file_name(f_name ? f_name : "");
  line->line_number = static_cast<uint32_t>(f_lnum);
  line->length = inbuf_len;
  line->text = text;
  line->source_text = text;
  curline = line;
  LST_attach_line(line, LST_FIRST);
  LEX_reset();
}

void LST_attach_line(linebuf *line, LST_ln_opt opt) {
  if (!line) return;
  line->next = nullptr;
  lst_group *g = lastlst;
  if (!g || (opt == LST_NEWGROUP && g->first)) g = new_group();
  if (g->last) g->last->next = line;
  else g->first = line;
  g->last = line;
}

linebuf *LST_detach_line(LST_ln_opt opt) {
  lst_group *g = opt == LST_FIRST ? curlst : lastlst;
  if (!g) {
    error_internal(1, curline, "Can't pull a line from an empty line header");
    return nullptr;
  }
  if (!g->first) {
    error_internal(1, curline, "Can't pull a line from an empty list");
    return nullptr;
  }
  linebuf *line = g->last;
  if (g->first == line) {
    g->first = g->last = nullptr;
  } else {
    linebuf *prev = g->first;
    while (prev->next != line) prev = prev->next;
    prev->next = nullptr;
    g->last = prev;
  }
  line->next = nullptr;
  return line;
}

void LST_mvlnbuf(LST_ln_opt opt) {
  if (linebuf *line = LST_detach_line(opt)) LST_attach_line(line, LST_NEWGROUP);
}

void LST_object(linebuf *line, unsigned int address, unsigned char *bytes, char mark, unsigned char count) {
  if (!ASSY_LST) return;  // only the listing shows object fields
  if (count > 4) count = 4;
  uint32_t value = 0;
  if (bytes)
    for (unsigned i = 0; i < count; ++i) value = (value << 8) | bytes[i];
  auto *obj = new obj_flds{address, value, mark ? mark : ' ', count, nullptr};
  LST_attach_obj(line, obj);
}

void LST_attach_obj(linebuf *line, obj_flds *obj) {
  if (!obj) return;
  if (!line) {
    LSTOBJ_free(obj);
    return;
  }
  obj_flds **tail = &line->object;
  while (*tail) tail = &(*tail)->next;
  *tail = obj;
}

void LSTOBJ_free(obj_flds *obj) {
  while (obj) {
    obj_flds *next = obj->next;
    delete obj;
    obj = next;
  }
}

void LST_add_emsg(linebuf *line, const char *msg) {
  if (!line || !msg) return;
  for (char *&slot : line->messages) {
    if (!slot) {
      slot = safestrdup(msg);
      return;
    }
  }
}

void LST_expand(int32_t from, int32_t to, std::string text, int32_t length) {
  if (!curline) {
    error_internal(1, nullptr, "Trying to patch an unattached buffer!");
    return;
  }
  const char *current = curline->expanded_text ? curline->expanded_text : curline->source_text;
  const std::string old = current ? current : "";
  const size_t a = std::min<size_t>(from < 0 ? 0 : static_cast<size_t>(from), old.size());
  const size_t b = std::max(a, std::min<size_t>(to < 0 ? 0 : static_cast<size_t>(to), old.size()));
  const size_t n = std::min<size_t>(length < 0 ? 0 : static_cast<size_t>(length), text.size());
  const std::string changed = old.substr(0, a) + text.substr(0, n) + old.substr(b);

  auto *buf = static_cast<char *>(safemalloc(changed.size() + 1));
  std::memcpy(buf, changed.c_str(), changed.size() + 1);
  std::free(curline->expanded_text);
  curline->expanded_text = buf;
  curline->length = static_cast<uint32_t>(changed.size());
  LEX_inbuf_update(buf, static_cast<short>(changed.size()));
  inbuf_len = static_cast<uint32_t>(changed.size());
  chpos = static_cast<int32_t>(a) - 1;
  chtyp = CH_SPACE;
  ch = ' ';
}

void LST_free() {
  lst_group *g = curlst;
  if (!g) return;
  curlst = g->next;
  if (!curlst) lastlst = nullptr;
  for (linebuf *line = g->first; line;) {
    linebuf *next = line->next;
    free_line(line);
    line = next;
  }
  g->next = spare_groups;
  spare_groups = g;
}

void LST_clear() {
  while (curlst) LST_free();
}

void LST_dump() {
  if (!curlst) return;
  const bool in_include = include_point >= 0 && copytop >= include_point;
  if (pass2 && ASSY_LST && (LST_control & LST_LIST_ON) && !in_include) LST_print_group(curlst);
  LST_free();
}
