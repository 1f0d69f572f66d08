#pragma once
// The opcode hash table: directives, mnemonics, macros and built-in functions by name.
#include <cstdint>
#include <string>
#include <string_view>

struct dir_oprec;
struct mnemonic_row;
struct bifcn_oprec;

constexpr int HASH_SIZE = 5003;

// Kinds of an ophashtbl entry.
enum : uint32_t {
  OPTYPE_DIRECTIVE = 0,  // row: dir_oprec
  OPTYPE_MNEMONIC = 1,   // row: mnemonic_row
  OPTYPE_MACRO = 2,      // row: macro record
  OPTYPE_LIBMACRO = 3,   // row: macro library member not loaded yet
  OPTYPE_BUILTIN = 4,    // row: bifcn_oprec
};

struct ophashtbl {
  ophashtbl *next;
  uint32_t kind;
  void *row;
  std::string name;      // upper case

  const dir_oprec *dir() const { return static_cast<const dir_oprec *>(row); }
  const mnemonic_row *mnemonic() const { return static_cast<const mnemonic_row *>(row); }
  const bifcn_oprec *bif() const { return static_cast<const bifcn_oprec *>(row); }
};

extern ophashtbl *ophash[HASH_SIZE + 1];
// Counts the changes of the table: what was found by name before holds
// while it is the same.
extern uint32_t ophash_generation;

// The one hash of the system (also for names and tagnames): 0..5002.
int hash(const std::string &s);
// The same hash before its reduction to a bucket: a cheap first test of names.
uint32_t hash_full(const std::string &s);
// One character's step of hash_full.
constexpr uint32_t hash_step(uint32_t h, char c) {
  return ((h << 7) | (h >> 25)) ^ static_cast<uint32_t>(static_cast<int32_t>(static_cast<signed char>(c)));
}

// Adds at the head of its bucket, so the youngest entry of a name wins.
ophashtbl *entophash(ophashtbl *entry);
// A new entry (name copied and upper-cased) added by entophash.
ophashtbl *new_ophash(const std::string &name, uint32_t kind, void *row);
// Unchains an entry and deletes it.
void delophash(ophashtbl *entry);
// First entry of that name (any case); a mnemonic counts only when its row
// has an encoding in encode_state.
ophashtbl *findop(std::string_view name);

// Reclassifies curtk when it is a TK_IDENT: directive, mnemonic (with the
// rest of the word pushed back as TK_OPCODE_REST), macro or built-in.
void lookup_opcode();

void enter_dirtbl(const dir_oprec *table);
void enter_instrtbl(const mnemonic_row *table);
void enter_fcntbl(const bifcn_oprec *table);
// Enters gen_direct, trg_direct, trg_mnemonics and the
// built-in functions, in that order.
void init_ophash();
