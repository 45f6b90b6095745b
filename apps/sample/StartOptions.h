#pragma once

#include <string>

/// What the command line asks of the sample.
struct StartOptions
{
    bool summary = false;     ///< print what the pages show to standard output
    bool help = false;        ///< print how to call the program
    std::string snapshotFile; ///< save a picture of the window there and exit
    std::string shotsFolder;  ///< save pictures of the planner's windows there and exit
    std::string page;         ///< name of the page to show first, or its beginning
    std::string table;        ///< file of the table to browse; empty for the sample's own
    std::string find;         ///< FIELD=VALUE: the record to select there
    std::string view;         ///< text of the chart's view; empty for the stored one
    bool night = false;       ///< the chart's colours for the night
    std::string picture;      ///< file of the picture to view; empty for the sample's own
    std::string startup;      ///< case of the startup dialog's data; empty for the usual one
    bool noStartup = false;   ///< begin with the main window
    int rounds = 0;           ///< how many lives to lead and report on; 0 for the one of every program
    int width = 0;            ///< of the window in pixels; 0 leaves it as stored
    int height = 0;

    /// True when nobody is there to look: the program writes what it was asked for and ends.
    bool IsUnattended() const
    {
        return summary || !snapshotFile.empty() || !shotsFolder.empty();
    }

    /// Whether the startup dialog comes before the main window.
    bool ShowsStartup() const
    {
        return !startup.empty() || (!noStartup && !IsUnattended());
    }

    std::string error; ///< what is wrong with the command line; empty when nothing is
};

/// Reads the process's command line.
StartOptions ParseStartOptions(int count, const char* const* arguments);

/// The text for `--help`.
const char* StartOptionsHelp();
