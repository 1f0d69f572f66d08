#pragma once
// Opening source text. Every input is read twice, once per pass, so only a
// regular file will do; a pipe given as the main source is first copied to a
// temporary file that has no name, and so never outlives the run.
class FHM_FILE;

// The main source, opened "rb": a regular file as it is, a pipe or socket
// copied first. Null on failure, with *why the reason for the message.
FHM_FILE *SRC_open_main(const char *name, const char **why);
// A copied or included file, opened "rb": null (errno set) unless it is a
// regular file. The name is checked before it is opened, so that a FIFO
// without a writer cannot block the run.
FHM_FILE *SRC_open_copy(const char *path);
// Back to the start of f; false (errno set) when the stream cannot go there.
bool SRC_rewind(FHM_FILE *f);
// The end of a run that lost its source text under it: "cannot open source
// file %s: %s" with the name and errno's text, status 1.
[[noreturn]] void SRC_fail(const char *name, int err);
