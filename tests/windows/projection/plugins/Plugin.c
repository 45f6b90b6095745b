/* Projection plug-ins of every kind that a test needs, in plain C: what they export and answer is chosen by macros. */
#include <vornplugin.h>
#include <windows.h>

/* Any number that is none of the usual answers. */
enum
{
    LIVE_HANDLE = 77
};

__declspec(dllexport) int g_living = 0;
__declspec(dllexport) int g_inits = 0;

#ifndef PLUGIN_NO_CREATE
VornProjection CreateProjection(void)
{
    ++g_living;
#ifdef PLUGIN_ZERO_HANDLE
    return 0;
#else
    return LIVE_HANDLE;
#endif
}
#endif

#if defined(PLUGIN_PAGE_NAME)
/* A text at the very end of a page behind which nothing can be read; with or without its terminating zero. */
const char* QueryProjectionName(void)
{
    char* const pages = VirtualAlloc(NULL, 8192, MEM_RESERVE, PAGE_NOACCESS);
    char* const page = VirtualAlloc(pages, 4096, MEM_COMMIT, PAGE_READWRITE);
    page[4093] = 'A';
    page[4094] = 'B';
    page[4095] = PLUGIN_PAGE_NAME;
    return page + 4093;
}
#elif defined(PLUGIN_NOACCESS_NAME)
const char* QueryProjectionName(void)
{
    return VirtualAlloc(NULL, 4096, MEM_COMMIT | MEM_RESERVE, PAGE_NOACCESS);
}
#elif defined(PLUGIN_ENDLESS_NAME)
/* A text of 5,000 letters, too long for any name. */
const char* QueryProjectionName(void)
{
    static char text[5001];
    FillMemory(text, 5000, 'A');
    return text;
}
#elif defined(PLUGIN_CHANGING_NAME)
/* Each answer overwrites the one before. */
const char* QueryProjectionName(void)
{
    static char text[] = "@";
    ++text[0];
    return text;
}
#elif defined(PLUGIN_NAME)
const char* QueryProjectionName(void)
{
    return PLUGIN_NAME;
}
#endif

#ifdef PLUGIN_INIT
int InitProjection(VornProjection projection)
{
    g_inits += projection == LIVE_HANDLE;
    return PLUGIN_INIT;
}

void DestroyProjection(VornProjection projection)
{
    g_living -= projection == LIVE_HANDLE;
}

VornProjection Clone(VornProjection projection)
{
    ++g_living;
    return projection;
}

int LLtoXY(VornProjection projection, double lat, double lon, double* x, double* y)
{
    *x = lon + (double)projection;
    *y = lat;
    return 1;
}
#endif
