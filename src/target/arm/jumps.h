#pragma once
// Between the passes: branch chains and jump expansion.

// Lets long pseudo-branches chain to a nearer branch with the same target.
void reintroduce_branch_chains();
// Widens what does not reach, moves labels and re-sizes alignment gaps.
void expand_jumps();
