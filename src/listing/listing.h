#pragma once
// The queue of source lines in flight, with the object bytes and messages
// attached to them until LST_dump releases a statement's group.
#include <cstdint>
#include <string>

struct linebuf;

// One line of object output under a source line.
struct obj_flds {
  uint32_t address;
  uint32_t value;     // up to four bytes as they stand in the word
  char mark;          // blank, a section mark, '!' or '%'
  uint8_t count;      // bytes in value
  obj_flds *next;
};

// LST_control bits.
enum : uint32_t {
  LST_OPT_B = 0x0040, LST_OPT_H = 0x0080, LST_OPT_W = 0x0100, LST_OPT_L = 0x0200,
  LST_OPT_T = 0x0400,
  LST_LIST_ON = 0x0800,     // .list / .nolist
  LST_MLIST = 0x1000,       // lines of macro expansions and loops
  LST_FCLIST = 0x2000,      // skipped conditional text
  LST_SSLIST = 0x4000,      // lines changed by substitution, both forms
  LST_DRLIST = 0x8000,      // listing-control directive lines
};

// linebuf flag bits.
enum : uint16_t {
  LNF_PRINT = 1,       // print this line
  LNF_ADDRESS = 4,     // print the address field
  LNF_OBJECT = 8,      // print the object bytes
  LNF_16 = 16,
  LNF_FIRST_OBJ = 32,  // only the first line of object bytes
  LNF_LABEL = 64,      // a label and no statement so far
};

extern uint32_t LST_control;

// Queue options: 0 the end of the last group / the first group;
// 1 a new group behind a non-empty last group / the last group.
enum LST_ln_opt : int { LST_FIRST = 0, LST_NEWGROUP = 1 };

// A group of lines that make one statement.
struct lst_group {
  linebuf *first;
  linebuf *last;
  lst_group *next;
};
extern lst_group *curlst;   // first group
extern lst_group *lastlst;  // last group

// Reads a line (LEX_readln), makes it curline and queues it; at the end of
// input curline becomes null.
void LST_getln();
void LST_attach_line(linebuf *line, LST_ln_opt opt);
linebuf *LST_detach_line(LST_ln_opt opt);
void LST_mvlnbuf(LST_ln_opt opt);

// Attaches `count` (at most 4) bytes at `address`; bytes[0] is the most
// significant, printed first. Null bytes give the value 0, a mark of 0 a blank.
void LST_object(linebuf *line, unsigned int address, unsigned char *bytes, char mark, unsigned char count);
void LST_attach_obj(linebuf *line, obj_flds *obj);
void LSTOBJ_free(obj_flds *obj);
void LST_add_emsg(linebuf *line, const char *msg);

// Replaces columns [from, to) of curline's current text with the first
// `length` characters of text and points the lexer at `from`.
void LST_expand(int32_t from, int32_t to, std::string text, int32_t length);

// Releases the first group; in pass 2 with the listing on it is printed first.
void LST_dump();
// Writes one group to the listing file.
void LST_print_group(const lst_group *group);
void LST_free();
// Ends the listing file at the end of the run (ASSY_LST is then dropped).
void LST_close();
void LST_clear();
