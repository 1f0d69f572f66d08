// The opcode hash table and the one hash function of the name tables.
#include <cctype>
#include <cstdint>

#include "driver/options.h"
#include "driver/pipeline.h"
#include "expr/bif_table.h"
#include "source/lexer.h"
#include "source/ophash.h"
#include "target/arm/opcodes.h"

ophashtbl *ophash[HASH_SIZE + 1] = {};
uint32_t ophash_generation = 0;

int hash(const std::string &s) { return static_cast<int>(hash_full(s) % HASH_SIZE); }

uint32_t hash_full(const std::string &s) {
  const bool fold = opt_on(OPT_SYMS_IGNORE_CASE);
  uint32_t h = 0xFFFFFFFFu;
  for (char c : s) {
    if (fold) c = LEX_upper(c);
    h = hash_step(h, c);
  }
  return h;
}

ophashtbl *entophash(ophashtbl *entry) {
  const int h = hash(entry->name);
  entry->next = ophash[h];
  ophash[h] = entry;
  ++ophash_generation;
  return entry;
}

ophashtbl *new_ophash(const std::string &name, uint32_t kind, void *row) {
  auto *e = new ophashtbl{nullptr, kind, row, name};
  strupper(e->name);
  return entophash(e);
}

void delophash(ophashtbl *entry) {
  if (!entry) return;
  for (ophashtbl **link = &ophash[hash(entry->name)]; *link; link = &(*link)->next) {
    if (*link == entry) {
      *link = entry->next;
      ++ophash_generation;
      delete entry;
      return;
    }
  }
}

ophashtbl *findop(std::string_view given) {
  // Every statement looks its first word up: the upper case and its hash in
  // one pass over a short name, without a string of its own.
  char buffer[64];
  std::string long_name;
  char *upper = buffer;
  if (given.size() > sizeof buffer) {
    long_name.resize(given.size());
    upper = long_name.data();
  }
  uint32_t h = 0xFFFFFFFFu;
  for (size_t i = 0; i < given.size(); ++i) {
    const char c = LEX_upper(given[i]);
    upper[i] = c;
    h = hash_step(h, c);
  }
  const std::string_view name(upper, given.size());
  for (ophashtbl *e = ophash[h % HASH_SIZE]; e; e = e->next) {
    if (e->name != name) continue;
    if (e->kind == OPTYPE_MNEMONIC) {
      const auto *row = e->mnemonic();
      if (encode_state > STATE_THUMB2_REG || !row->slot[encode_state].cls) continue;
    }
    return e;
  }
  return nullptr;
}

void enter_dirtbl(const dir_oprec *table) {
  for (const dir_oprec *row = table; row && row->name; ++row)
    new_ophash(row->name, OPTYPE_DIRECTIVE, const_cast<dir_oprec *>(row));
}

void enter_instrtbl(const mnemonic_row *table) {
  for (const mnemonic_row *row = table; row && row->name; ++row)
    new_ophash(row->name, OPTYPE_MNEMONIC, const_cast<mnemonic_row *>(row));
}

void enter_fcntbl(const bifcn_oprec *table) {
  for (const bifcn_oprec *row = table; row && row->name; ++row)
    new_ophash(row->name, OPTYPE_BUILTIN, const_cast<bifcn_oprec *>(row));
}

void init_ophash() {
  enter_dirtbl(gen_direct);
  enter_dirtbl(trg_direct);
  enter_instrtbl(trg_mnemonics);
  enter_fcntbl(built_in_fcns);
}
