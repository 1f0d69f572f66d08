#pragma once
// Interim encoder bodies: a class whose encoder has not landed is refused at
// its line, never written as wrong bits.
struct instruct;
void encode_not_supported(instruct *ir);
