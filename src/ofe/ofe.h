// The object file engine: everything a client needs to build and save an
// object file.
#pragma once

#include "ofe/elf_file.h"
#include "ofe/object_file.h"
#include "ofe/of_group.h"
#include "ofe/of_machine.h"
#include "ofe/of_reloc.h"
#include "ofe/of_reloc_type.h"
#include "ofe/of_section.h"
#include "ofe/of_string_table.h"
#include "ofe/of_symbol.h"
