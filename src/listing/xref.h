#pragma once
// The cross-reference table of the listing and its object section.

// After pass 2 under --cross_reference.
void printxref();
