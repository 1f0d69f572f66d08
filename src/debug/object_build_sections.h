#pragma once
// The per-section stage of object assembly.
struct section_record;

// Executable flag, size of an uninitialised section, and for a group
// section its flag, members and signature symbol.
void BLD_finish_section(section_record *section);
// A COMDAT group section: members from the recorded names, signature symbol.
void BLD_group_section(section_record *section);
