#pragma once

#include <string>

/// What the command line asks of the sample.
struct StartOptions
{
    bool summary = false;     ///< print what the pages show to standard output
    bool help = false;        ///< print how to call the program
    std::string snapshotFile; ///< save a picture of the window there and exit
    std::string page;         ///< name of the page to show first
    int width = 0;            ///< of the window in pixels; 0 leaves it as stored
    int height = 0;
    std::string error; ///< what is wrong with the command line; empty when nothing is
};

/// Reads the process's command line.
StartOptions ParseStartOptions(int count, const char* const* arguments);

/// The text for `--help`.
const char* StartOptionsHelp();
