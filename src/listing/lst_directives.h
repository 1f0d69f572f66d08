#pragma once
// Listing-control directives and the page state of the listing file.
#include <cstdint>
struct instruct;

extern uint16_t LST_pagelen;
extern uint16_t LST_pagewidth;
extern uint16_t LST_tabwidth;
extern uint16_t LST_linesprinted;
extern uint16_t LST_pagenum;
extern char LST_title[65];

// Starts a new page of the listing file.
void LST_pagehdr();

void DP_title(instruct *ir);     // .title
void DP_option(instruct *ir);    // .option
void DP_lstparm(instruct *ir);   // .tab, .width, .length
// Pass-2 handlers (pass 1 is donothing).
void GD_title(instruct *ir);
void GD_option(instruct *ir);
void GD_lstparms(instruct *ir);
void GD_lstflags(instruct *ir);  // .page, .list ... .ssnolist
