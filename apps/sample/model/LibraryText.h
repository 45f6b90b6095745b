#pragma once

#include <string>

/// A text of the library's string table, found through the resource chain; empty when there is none.
std::string LibraryText(unsigned id);
