#pragma once
// Built-in functions ($$name) as the expression term reader calls them.
struct node;

// curtk is a TK_INTRINSIC. Reads the call and returns its leaf, or null after
// a message; the current token is then the one after the call.
node *BIF_term();
