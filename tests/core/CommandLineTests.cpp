#include "frame/core/CommandLine.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace vorn;
using Arguments = std::vector<std::string>;

namespace
{

Arguments ArgumentsOf(std::string_view line)
{
    Arguments arguments;
    ForEachArgument(line,
                    [&arguments](std::string_view argument)
                    {
                        arguments.emplace_back(argument);
                    });
    return arguments;
}

} // namespace

TEST(CommandLine, BlanksAndTabsSeparate)
{
    EXPECT_EQ(ArgumentsOf("a \t b\tc"), (Arguments{"a", "b", "c"}));
    EXPECT_EQ(ArgumentsOf("  a  "), (Arguments{"a"}));
    EXPECT_EQ(ArgumentsOf("a\nb\rc"), (Arguments{"a\nb\rc"}));
}

TEST(CommandLine, NothingComesOfBlanks)
{
    EXPECT_EQ(ArgumentsOf(""), Arguments{});
    EXPECT_EQ(ArgumentsOf(" \t "), Arguments{});
}

TEST(CommandLine, QuotesHoldBlanksTogether)
{
    EXPECT_EQ(ArgumentsOf("a \"b c\" d"), (Arguments{"a", "b c", "d"}));
    EXPECT_EQ(ArgumentsOf("\" a\t\""), (Arguments{" a\t"}));
    EXPECT_EQ(ArgumentsOf("\"\" a"), (Arguments{"", "a"}));
}

TEST(CommandLine, AClosingQuoteEndsTheArgument)
{
    EXPECT_EQ(ArgumentsOf("\"a\"b"), (Arguments{"a", "b"}));
    EXPECT_EQ(ArgumentsOf("\"a\"\"b\""), (Arguments{"a", "b"}));
}

TEST(CommandLine, AMissingClosingQuoteTakesTheRest)
{
    EXPECT_EQ(ArgumentsOf("a \"b c "), (Arguments{"a", "b c "}));
    EXPECT_EQ(ArgumentsOf("\""), (Arguments{""}));
    EXPECT_EQ(ArgumentsOf("a \""), (Arguments{"a", ""}));
}

TEST(CommandLine, AQuoteInsideAWordIsPlain)
{
    EXPECT_EQ(ArgumentsOf("a\"b c\""), (Arguments{"a\"b", "c\""}));
    EXPECT_EQ(ArgumentsOf("\\\"a b"), (Arguments{"\\\"a", "b"}));
}
