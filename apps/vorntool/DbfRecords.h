#pragma once

#include "apps/vorntool/DbfOutput.h"
#include "apps/vorntool/DbfProgress.h"
#include "apps/vorntool/DbfTable.h"

#include <vector>

namespace vorn::tool
{

/// How records are printed.
enum class DbfForm
{
    Grid,     ///< a line each, lined up
    Vertical, ///< a line for each field
    Json      ///< one array
};

/// The form that a call asks for; a grid when it asks for none.
DbfForm DbfFormFrom(const Invocation& call);

/// Prints records of a table, given by their numbers in rising order.
void PrintDbfRecords(DbfTable& table, const std::vector<int>& records, const std::vector<int>& fields, DbfForm form,
                     DbfProgress& progress);

} // namespace vorn::tool
