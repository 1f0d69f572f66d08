// Factory of the ZQ-COFF form of OBJECT_FILE.
#pragma once

#include "ofe/of_types.h"

namespace OFE {

// Null when the format is not available.
OBJECT_FILE *new_ZQCOFF_FILE(const OF_FILE_HANDLE &handle);

}  // namespace OFE
