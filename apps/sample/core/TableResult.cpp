#include "apps/sample/core/DataTable.h"

namespace vorn
{

const char* Explain(TableResult result)
{
    switch (result)
    {
    case TableResult::Done:
        return "";
    case TableResult::NotFound:
        return "There is no such file";
    case TableResult::InUse:
        return "Another program has the table open";
    case TableResult::Denied:
        return "The file is write-protected, or may not be opened";
    case TableResult::NotTable:
        return "The file is no dBASE table";
    case TableResult::ReadOnly:
        return "The table is open for reading alone";
    case TableResult::TooLong:
        return "The text is longer than the field";
    case TableResult::NotDigits:
        return "The field takes digits alone";
    case TableResult::NoMemoFile:
        return "The table has no memo file";
    case TableResult::NotWritten:
        return "The change could not be written; the table is as it was";
    }
    return "";
}

} // namespace vorn
