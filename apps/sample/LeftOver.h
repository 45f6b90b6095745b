#pragma once

/// What a process holds, for comparing one life of the application with the next.
struct LeftOver
{
    unsigned heapBlocks = 0;  ///< in use, of all heaps of the process
    unsigned gdiObjects = 0;  ///< pens, fonts, bitmaps, contexts, ...
    unsigned userObjects = 0; ///< windows, menus, icons, cursors and tables of keys
};

LeftOver CountLeftOver();
