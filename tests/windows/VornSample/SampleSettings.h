#pragma once

/// Where the sample keeps its settings, below the current user's key.
inline constexpr const char* kSettings = "Software\\Vornwald\\VornSample";
