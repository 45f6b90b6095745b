#include "apps/vorntool/core/FileList.h"

#include <gtest/gtest.h>

using vorn::tool::ListedFile;

namespace
{

const std::vector<ListedFile> kFiles{{"C:\\a.dbf", 5, 1709210096}, {"C:\\b.dbt", 1'234'567, 0}};

} // namespace

TEST(ToolFileList, IsOnePathALine)
{
    EXPECT_EQ(vorn::tool::PathLines(kFiles), "C:\\a.dbf\nC:\\b.dbt\n");
    EXPECT_EQ(vorn::tool::PathLines({}), "");
}

TEST(ToolFileList, LinesSizesUpAndAddsThem)
{
    EXPECT_EQ(vorn::tool::LongLines(kFiles), "      5  2024-02-29T12:34:56Z  C:\\a.dbf\n"
                                             "1234567  1970-01-01T00:00:00Z  C:\\b.dbt\n"
                                             "2 files, 1234572 bytes\n");
    EXPECT_EQ(vorn::tool::LongLines({{"a", 1, 0}}), "1  1970-01-01T00:00:00Z  a\n1 file, 1 byte\n");
}

TEST(ToolFileList, IsAnArrayOfObjects)
{
    vorn::tool::JsonWriter json;
    vorn::tool::WriteFiles(json, kFiles);
    EXPECT_EQ(json.Line(), "[{\"path\":\"C:\\\\a.dbf\",\"size\":5,\"written\":\"2024-02-29T12:34:56Z\"},"
                           "{\"path\":\"C:\\\\b.dbt\",\"size\":1234567,\"written\":\"1970-01-01T00:00:00Z\"}]\n");
}
