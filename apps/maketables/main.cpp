#include "apps/maketables/core/TableMaker.h"

#include <cstdio>
#include <fstream>
#include <sstream>

// maketables VALUES.csv TABLE.dbf: a step of the build, on the machine that builds.
int main(int count, char** arguments)
{
    if (count != 3)
    {
        std::fputs("maketables VALUES.csv TABLE.dbf\n", stderr);
        return 2;
    }
    std::ifstream file(arguments[1], std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    const std::string problem = file ? vorn::MakeTable(text.str(), arguments[2]) : "cannot be read";
    if (problem.empty())
        return 0;
    std::fprintf(stderr, "maketables: %s: %s\n", arguments[1], problem.c_str());
    return 1;
}
