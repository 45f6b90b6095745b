#pragma once

/* Buttons and controls of property sheets, which the system numbers. Also read by the resource compiler: plain
   definitions only. OK, Cancel and Help have the numbers of every dialog. */

#define ID_APPLY_NOW 0x3021
#define ID_WIZBACK 0x3023
#define ID_WIZNEXT 0x3024
#define ID_WIZFINISH 0x3025
