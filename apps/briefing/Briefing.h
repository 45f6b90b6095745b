#pragma once

#include "apps/datasets/DataSets.h"

#include <string>
#include <vector>

/// The two applications of the family, by the names under which settings and folders are kept.
inline constexpr const char* kThisProgram = "VornBriefing";
inline constexpr const char* kSample = "VornSample";

/// Makes both applications known to the settings manager and the path manager of this process, this program first.
void RegisterFamily();

struct BriefingRow
{
    std::string what;
    std::string own;    ///< of this program
    std::string sample; ///< of the other sample
};

/// Data sets with their currency, then the units and the folders of both programs, and the proxies that they share. A
/// row with a text in `what` alone is a heading.
std::vector<BriefingRow> Briefing(Currency currency);

/// The rows as text, a line each, columns parted by " | ".
std::string TextOf(const std::vector<BriefingRow>& rows);

/// Stores the sample's units as this program's own.
void TakeOverUnits();
