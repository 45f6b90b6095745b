#include "tests/windows/vorntool/ToolProcess.h"

using namespace vorn::test;

TEST(MorseTool, ShowsTheCodeAndItsWidth)
{
    ExpectDone({"morse", "SOS"}, "... --- ...\n30 units\n");
    ExpectDone({"morse", "e"}, ".\n1 unit\n");
    ExpectDone({"morse", "SeA"}, "... . .-\n18 units\n");
    ExpectDone({"morse", ""}, "\n0 units\n");
}

TEST(MorseTool, CodesEveryLetter)
{
    ExpectDone({"morse", "ABCDEFGHIJKLM"}, ".- -... -.-. -.. . ..-. --. .... .. .--- -.- .-.. --\n151 units\n");
    ExpectDone({"morse", "nopqrstuvwxyz"}, "-. --- .--. --.- .-. ... - ..- ...- .-- -..- -.-- --..\n173 units\n");
}

TEST(MorseTool, TellsPixelsForAUnit)
{
    ExpectDone({"morse", "SOS", "--unit", "2"}, "... --- ...\n30 units, 60 pixels\n");
    ExpectDone({"morse", "E", "--unit=1"}, ".\n1 unit, 1 pixel\n");
    ExpectDone({"morse", "E", "--unit", "2147483647"}, ".\n1 unit, 2147483647 pixels\n");
}

TEST(MorseTool, JsonHasTheCodeLetterByLetter)
{
    ExpectDone({"morse", "Sea", "--json"},
               "{\"text\":\"Sea\",\"code\":[\"...\",\".\",\".-\"],\"units\":18,\"unit\":1,\"pixels\":18}\n");
    ExpectDone({"morse", "T", "--unit", "3", "--json"},
               "{\"text\":\"T\",\"code\":[\"-\"],\"units\":4,\"unit\":3,\"pixels\":12}\n");
    ExpectDone({"morse", "", "--json"}, "{\"text\":\"\",\"code\":[],\"units\":0,\"unit\":1,\"pixels\":0}\n");
}

TEST(MorseTool, WhatHasNoCodeIsRefused)
{
    ExpectFailure({"morse", "VOR1"}, 1, "vorntool morse: 'VOR1' has a character that is no letter from A to Z");
    ExpectFailure({"morse", "S O S"}, 1, "vorntool morse: 'S O S' has a character that is no letter from A to Z");
    ExpectFailure({"morse", "\xC3\x89T"}, 1,
                  "vorntool morse: '\xC3\x89T' has a character that is no letter from A to Z");
    ExpectFailure({"morse", "T", "--unit", "2147483647"}, 1,
                  "vorntool morse: the code is wider than 2147483647 pixels");
}

TEST(MorseTool, UnitsBelowOneAndOtherWordsAreWrongUse)
{
    for (const char* unit : {"0", "-2", "two", "1.5", "2147483648", ""})
    {
        ExpectFailure({"morse", "SOS", std::string("--unit=") + unit}, 2,
                      "vorntool morse: --unit takes a whole number from 1 to 2147483647");
    }
    ExpectFailure({"morse"}, 2, "vorntool morse: TEXT is missing; see 'vorntool morse --help'");
}
