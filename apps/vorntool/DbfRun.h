#pragma once

#include "apps/vorntool/core/Command.h"

/// @file
/// What the commands on tables do. Each ends by a ToolFailure when it cannot.
namespace vorn::tool
{

void ShowDbfInfo(const Invocation& call, Output& output);
void ShowDbfHead(const Invocation& call, Output& output);
void DumpDbf(const Invocation& call, Output& output);
void QueryDbf(const Invocation& call, Output& output);
void ExportDbf(const Invocation& call, Output& output);
void ImportDbf(const Invocation& call, Output& output);
void SetDbfField(const Invocation& call, Output& output);
void DeleteDbfRecord(const Invocation& call, Output& output);
void PackDbf(const Invocation& call, Output& output);
void ShowDbfMemo(const Invocation& call, Output& output);

} // namespace vorn::tool
