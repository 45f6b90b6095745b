#pragma once

/// @file
/// What the 94 defined folders must be, worked out by a script from their written rules and not from the table in the
/// code. No file stands in the first airport diagram folder.

namespace vorn::test
{

struct Folders
{
    const char* legacy;
    const char* user;
};

// clang-format off
/// An installation of "Planner" in C:\Program Files\Vornwald\Planner\ with user "pilot".
inline constexpr Folders kStandardFolders[] = {
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\Program Files\Vornwald\Planner\)"}, // 0
    {R"(C:\Program Files\)", R"(C:\Program Files\)"}, // 1
    {R"(C:\Program Files\)", R"(C:\users\pilot\)"}, // 2
    {R"(C:\Program Files\)", R"(C:\users\pilot\AppData\Local\)"}, // 3
    {R"(C:\Program Files\)", R"(C:\users\pilot\AppData\Roaming\)"}, // 4
    {R"(C:\Program Files\)", R"(C:\users\Public\)"}, // 5
    {R"(C:\Program Files\)", R"(C:\ProgramData\)"}, // 6
    {R"(C:\Program Files\)", R"(C:\Program Files\)"}, // 7
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\Program Files\Vornwald\Planner\)"}, // 8
    {R"(C:\Program Files\Vornwald\Common\)", R"(C:\Program Files\Vornwald\Planner\)"}, // 9
    {R"(C:\Program Files\Vornwald\Planner\EnrouteData\)", R"(C:\ProgramData\Vornwald\Planner\EnrouteData\)"}, // 10
    {R"(C:\ProgramData\Vornwald\Planner\EnrouteData\)", R"(C:\ProgramData\Vornwald\Planner\EnrouteData\)"}, // 11
    {R"(C:\Program Files\Vornwald\Common\VPL\)", R"(C:\ProgramData\Vornwald\Common\VPL\)"}, // 12
    {R"(C:\Program Files\Vornwald\Planner\Bitmaps\)", R"(C:\ProgramData\Vornwald\Planner\Bitmaps\)"}, // 13
    {R"(C:\Program Files\Vornwald\Planner\Track\)", R"(C:\users\pilot\Vornwald\Planner\Track\)"}, // 14
    {R"(C:\Program Files\Vornwald\Planner\Cache\)", R"(C:\users\pilot\AppData\Local\Vornwald\Planner\Cache\)"}, // 15
    {R"(C:\Program Files\Vornwald\Planner\Notebook\)", R"(C:\users\pilot\Vornwald\Planner\Notebook\)"}, // 16
    {R"(C:\Program Files\Vornwald\Planner\Checklist\)", R"(C:\ProgramData\Vornwald\Planner\Checklist\)"}, // 17
    {R"(C:\Program Files\Vornwald\Common\Aircraft\)", R"(C:\users\pilot\Vornwald\Common\Aircraft\)"}, // 18
    {R"(C:\Program Files\Vornwald\Common\Aircraft\)", R"(C:\ProgramData\Vornwald\Common\Aircraft\)"}, // 19
    {R"(C:\Program Files\Vornwald\Common\Ter\)", R"(C:\ProgramData\Vornwald\Common\Ter\)"}, // 20
    {R"(C:\Program Files\Vornwald\Common\Fonts\)", R"(C:\ProgramData\Vornwald\Common\Fonts\)"}, // 21
    {R"(C:\Program Files\Vornwald\Planner\Charts\)", R"(C:\users\pilot\Vornwald\Planner\Charts\)"}, // 22
    {R"(C:\Program Files\Vornwald\Planner\Charts\Approach\)", R"(C:\users\pilot\Vornwald\Planner\Charts\Approach\)"}, // 23
    {R"(C:\Program Files\Vornwald\Planner\Reports\)", R"(C:\ProgramData\Vornwald\Planner\Reports\)"}, // 24
    {R"(C:\Program Files\Vornwald\Planner\Themes\)", R"(C:\ProgramData\Vornwald\Planner\Themes\)"}, // 25
    {R"(C:\Program Files\Vornwald\Common\AptDiagram\)", R"(C:\ProgramData\Vornwald\Planner\AptDiagram\)"}, // 26
    {R"(C:\Program Files\Vornwald\Planner\WxOverlay\)", R"(C:\ProgramData\Vornwald\Planner\WxOverlay\)"}, // 27
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\users\pilot\Vornwald\Planner\)"}, // 28
    {R"(C:\Program Files\Vornwald\Common\RoutePack\)", R"(C:\users\pilot\Vornwald\Common\RoutePack\)"}, // 29
    {R"(C:\Program Files\Vornwald\Common\Weather\)", R"(C:\users\pilot\Vornwald\Common\Weather\)"}, // 30
    {R"(C:\Program Files\Vornwald\Common\Weather\Graphics\)", R"(C:\users\pilot\Vornwald\Planner\Charts\Graphics\)"}, // 31
    {R"(C:\Program Files\Vornwald\Common\Weather\Vector\)", R"(C:\users\pilot\Vornwald\Planner\Charts\Graphics\)"}, // 32
    {R"(C:\Program Files\Vornwald\Common\Weather\Text\)", R"(C:\users\pilot\Vornwald\Planner\Charts\Text\)"}, // 33
    {R"(C:\Program Files\Vornwald\Planner\WxScript\)", R"(C:\ProgramData\Vornwald\Planner\WxScript\)"}, // 34
    {R"(C:\Program Files\Vornwald\Planner\WxRender\)", R"(C:\ProgramData\Vornwald\Common\WxRender\)"}, // 35
    {R"(C:\Program Files\Vornwald\Planner\Themes\)", R"(C:\ProgramData\Vornwald\Common\WxInventory\)"}, // 36
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\users\pilot\AppData\Local\Vornwald\Planner\)"}, // 37
    {R"(C:\Program Files\Vornwald\Common\TerminalCharts\)", R"(C:\ProgramData\Vornwald\Common\TerminalCharts\)"}, // 38
    {R"(C:\Program Files\Vornwald\Planner\Training\)", R"(C:\ProgramData\Vornwald\Planner\Training\)"}, // 39
    {R"(C:\Program Files\Vornwald\Common\Training\)", R"(C:\ProgramData\Vornwald\Common\Training\)"}, // 40
    {R"(C:\Program Files\Vornwald\Planner\Themes\)", R"(C:\users\pilot\Vornwald\Common\Themes\)"}, // 41
    {R"(C:\Program Files\Vornwald\Planner\Themes\)", R"(C:\users\pilot\Vornwald\Common\Themes\)"}, // 42
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\Program Files\Vornwald\Planner\)"}, // 43
    {R"(C:\Program Files\Vornwald\Common\OAM\)", R"(C:\ProgramData\Vornwald\Common\OAM\)"}, // 44
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\users\pilot\Vornwald\Planner\)"}, // 45
    {R"(C:\Program Files\Vornwald\Planner\Themes\)", R"(C:\users\pilot\AppData\Local\Vornwald\Planner\)"}, // 46
    {R"(C:\Program Files\Vornwald\Common\Text\Database\)", R"(C:\ProgramData\Vornwald\Common\Text\Database\)"}, // 47
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\ProgramData\Vornwald\Planner\)"}, // 48
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\ProgramData\Vornwald\Planner\)"}, // 49
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\ProgramData\Vornwald\Planner\)"}, // 50
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\ProgramData\Vornwald\Planner\)"}, // 51
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\users\pilot\AppData\Local\Vornwald\Planner\)"}, // 52
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\ProgramData\Vornwald\Planner\)"}, // 53
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\ProgramData\Vornwald\Planner\)"}, // 54
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\Program Files\Vornwald\Planner\)"}, // 55
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\Program Files\Vornwald\Planner\)"}, // 56
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\Program Files\Vornwald\Planner\)"}, // 57
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\ProgramData\Vornwald\Planner\)"}, // 58
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\ProgramData\Vornwald\Planner\)"}, // 59
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\ProgramData\Vornwald\Planner\)"}, // 60
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\users\pilot\AppData\Local\Vornwald\Planner\)"}, // 61
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\Program Files\Vornwald\Planner\)"}, // 62
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\users\pilot\AppData\Local\Vornwald\Planner\)"}, // 63
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\users\pilot\AppData\Local\Vornwald\Planner\)"}, // 64
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\ProgramData\Vornwald\Common\WxInventory\)"}, // 65
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\users\pilot\AppData\Local\Vornwald\Planner\)"}, // 66
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\users\pilot\AppData\Local\Vornwald\Planner\)"}, // 67
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\Program Files\Vornwald\Planner\)"}, // 68
    {R"(C:\Program Files\Vornwald\Planner\Themes\)", R"(C:\ProgramData\Vornwald\Common\WxInventory\)"}, // 69
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\Program Files\Vornwald\Planner\)"}, // 70
    {R"(C:\Program Files\Vornwald\Common\Utilities\)", R"(C:\Program Files\Vornwald\Common\Utilities\)"}, // 71
    {R"(C:\Program Files\Vornwald\Common\Text\)", R"(C:\ProgramData\Vornwald\Common\Text\)"}, // 72
    {R"(C:\Program Files\Vornwald\Common\Utilities\)", R"(C:\users\pilot\Vornwald\Common\Logfiles\)"}, // 73
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\Program Files\Vornwald\Planner\)"}, // 74
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\ProgramData\Vornwald\Planner\)"}, // 75
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\ProgramData\Vornwald\Planner\)"}, // 76
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\Program Files\Vornwald\Planner\)"}, // 77
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\ProgramData\Vornwald\Planner\)"}, // 78
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\ProgramData\Vornwald\Planner\)"}, // 79
    {R"(C:\)", R"(C:\)"}, // 80
    {R"(C:\)", R"(C:\)"}, // 81
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\Program Files\Vornwald\Planner\)"}, // 82
    {R"(C:\Program Files\Vornwald\Downloads\)", R"(C:\ProgramData\Downloads\)"}, // 83
    {R"(C:\Program Files\Vornwald\Planner\Formats\)", R"(C:\ProgramData\Vornwald\Planner\Formats\)"}, // 84
    {R"(C:\Program Files\Vornwald\Planner\Data\)", R"(C:\ProgramData\Vornwald\Planner\Data\)"}, // 85
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\ProgramData\Vornwald\Planner\)"}, // 86
    {R"(C:\Program Files\Vornwald\Planner\Data\)", R"(C:\users\pilot\Vornwald\Common\Data\)"}, // 87
    {R"(C:\Program Files\Vornwald\Planner\Data\)", R"(C:\users\pilot\Vornwald\Common\Data\)"}, // 88
    {R"(C:\Program Files\Vornwald\Planner\Data\)", R"(C:\users\pilot\Vornwald\Common\Data\)"}, // 89
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\Program Files\Vornwald\Planner\)"}, // 90
    {R"(C:\Program Files\Vornwald\Planner\DrawingAPI\)", R"(C:\users\pilot\Vornwald\Common\DrawingAPI\)"}, // 91
    {R"(C:\Program Files\Vornwald\Planner\DrawingTools\)", R"(C:\users\pilot\Vornwald\Planner\DrawingTools\)"}, // 92
    {R"(C:\ProgramData\Vornwald\Common\NTQ\config\)", R"(C:\ProgramData\Vornwald\Common\NTQ\config\)"}, // 93
};

/// Module "Plan"; every source of folders on a drive of its own.
inline constexpr Folders kScatteredFolders[] = {
    {R"(E:\Bin\)", R"(E:\Bin\)"}, // 0
    {R"(R:\Root\)", R"(R:\Root\)"}, // 1
    {R"(R:\Root\)", R"(U:\pilot\)"}, // 2
    {R"(R:\Root\)", R"(L:\Local\)"}, // 3
    {R"(R:\Root\)", R"(M:\Roaming\)"}, // 4
    {R"(R:\Root\)", R"(W:\Public\)"}, // 5
    {R"(R:\Root\)", R"(D:\ProgramData\)"}, // 6
    {R"(P:\Programs\)", R"(P:\Programs\)"}, // 7
    {R"(H:\Fam\Vornwald\Plan\)", R"(H:\Fam\Vornwald\Plan\)"}, // 8
    {R"(H:\Fam\Vornwald\Common\)", R"(H:\Fam\Vornwald\Plan\)"}, // 9
    {R"(H:\Fam\Vornwald\Plan\EnrouteData\)", R"(D:\ProgramData\Vornwald\Plan\EnrouteData\)"}, // 10
    {R"(D:\ProgramData\Vornwald\Plan\EnrouteData\)", R"(D:\ProgramData\Vornwald\Plan\EnrouteData\)"}, // 11
    {R"(H:\Fam\Vornwald\Common\VPL\)", R"(D:\ProgramData\Vornwald\Common\VPL\)"}, // 12
    {R"(H:\Fam\Vornwald\Plan\Bitmaps\)", R"(D:\ProgramData\Vornwald\Plan\Bitmaps\)"}, // 13
    {R"(H:\Fam\Vornwald\Plan\Track\)", R"(U:\pilot\Vornwald\Plan\Track\)"}, // 14
    {R"(H:\Fam\Vornwald\Plan\Cache\)", R"(L:\Local\Vornwald\Plan\Cache\)"}, // 15
    {R"(H:\Fam\Vornwald\Plan\Notebook\)", R"(U:\pilot\Vornwald\Plan\Notebook\)"}, // 16
    {R"(H:\Fam\Vornwald\Plan\Checklist\)", R"(D:\ProgramData\Vornwald\Plan\Checklist\)"}, // 17
    {R"(H:\Fam\Vornwald\Common\Aircraft\)", R"(U:\pilot\Vornwald\Common\Aircraft\)"}, // 18
    {R"(H:\Fam\Vornwald\Common\Aircraft\)", R"(D:\ProgramData\Vornwald\Common\Aircraft\)"}, // 19
    {R"(H:\Fam\Vornwald\Common\Ter\)", R"(D:\ProgramData\Vornwald\Common\Ter\)"}, // 20
    {R"(H:\Fam\Vornwald\Common\Fonts\)", R"(D:\ProgramData\Vornwald\Common\Fonts\)"}, // 21
    {R"(H:\Fam\Vornwald\Plan\Charts\)", R"(U:\pilot\Vornwald\Plan\Charts\)"}, // 22
    {R"(H:\Fam\Vornwald\Plan\Charts\Approach\)", R"(U:\pilot\Vornwald\Plan\Charts\Approach\)"}, // 23
    {R"(H:\Fam\Vornwald\Plan\Reports\)", R"(D:\ProgramData\Vornwald\Plan\Reports\)"}, // 24
    {R"(H:\Fam\Vornwald\Plan\Themes\)", R"(D:\ProgramData\Vornwald\Plan\Themes\)"}, // 25
    {R"(H:\Fam\Vornwald\Common\AptDiagram\)", R"(D:\ProgramData\Vornwald\Plan\AptDiagram\)"}, // 26
    {R"(H:\Fam\Vornwald\Plan\WxOverlay\)", R"(D:\ProgramData\Vornwald\Plan\WxOverlay\)"}, // 27
    {R"(H:\Fam\Vornwald\Plan\)", R"(U:\pilot\Vornwald\Plan\)"}, // 28
    {R"(H:\Fam\Vornwald\Common\RoutePack\)", R"(U:\pilot\Vornwald\Common\RoutePack\)"}, // 29
    {R"(H:\Fam\Vornwald\Common\Weather\)", R"(U:\pilot\Vornwald\Common\Weather\)"}, // 30
    {R"(H:\Fam\Vornwald\Common\Weather\Graphics\)", R"(U:\pilot\Vornwald\Plan\Charts\Graphics\)"}, // 31
    {R"(H:\Fam\Vornwald\Common\Weather\Vector\)", R"(U:\pilot\Vornwald\Plan\Charts\Graphics\)"}, // 32
    {R"(H:\Fam\Vornwald\Common\Weather\Text\)", R"(U:\pilot\Vornwald\Plan\Charts\Text\)"}, // 33
    {R"(H:\Fam\Vornwald\Plan\WxScript\)", R"(D:\ProgramData\Vornwald\Plan\WxScript\)"}, // 34
    {R"(H:\Fam\Vornwald\Plan\WxRender\)", R"(D:\ProgramData\Vornwald\Common\WxRender\)"}, // 35
    {R"(H:\Fam\Vornwald\Plan\Themes\)", R"(D:\ProgramData\Vornwald\Common\WxInventory\)"}, // 36
    {R"(H:\Fam\Vornwald\Plan\)", R"(L:\Local\Vornwald\Plan\)"}, // 37
    {R"(H:\Fam\Vornwald\Common\TerminalCharts\)", R"(D:\ProgramData\Vornwald\Common\TerminalCharts\)"}, // 38
    {R"(H:\Fam\Vornwald\Plan\Training\)", R"(D:\ProgramData\Vornwald\Plan\Training\)"}, // 39
    {R"(H:\Fam\Vornwald\Common\Training\)", R"(D:\ProgramData\Vornwald\Common\Training\)"}, // 40
    {R"(H:\Fam\Vornwald\Plan\Themes\)", R"(U:\pilot\Vornwald\Common\Themes\)"}, // 41
    {R"(H:\Fam\Vornwald\Plan\Themes\)", R"(U:\pilot\Vornwald\Common\Themes\)"}, // 42
    {R"(H:\Fam\Vornwald\Plan\)", R"(R:\Root\Vornwald\Plan\)"}, // 43
    {R"(H:\Fam\Vornwald\Common\OAM\)", R"(D:\ProgramData\Vornwald\Common\OAM\)"}, // 44
    {R"(H:\Fam\Vornwald\Plan\)", R"(U:\pilot\Vornwald\Plan\)"}, // 45
    {R"(H:\Fam\Vornwald\Plan\Themes\)", R"(L:\Local\Vornwald\Plan\)"}, // 46
    {R"(H:\Fam\Vornwald\Common\Text\Database\)", R"(D:\ProgramData\Vornwald\Common\Text\Database\)"}, // 47
    {R"(H:\Fam\Vornwald\Plan\)", R"(D:\ProgramData\Vornwald\Plan\)"}, // 48
    {R"(H:\Fam\Vornwald\Plan\)", R"(D:\ProgramData\Vornwald\Plan\)"}, // 49
    {R"(H:\Fam\Vornwald\Plan\)", R"(D:\ProgramData\Vornwald\Plan\)"}, // 50
    {R"(H:\Fam\Vornwald\Plan\)", R"(D:\ProgramData\Vornwald\Plan\)"}, // 51
    {R"(H:\Fam\Vornwald\Plan\)", R"(L:\Local\Vornwald\Plan\)"}, // 52
    {R"(H:\Fam\Vornwald\Plan\)", R"(D:\ProgramData\Vornwald\Plan\)"}, // 53
    {R"(H:\Fam\Vornwald\Plan\)", R"(D:\ProgramData\Vornwald\Plan\)"}, // 54
    {R"(H:\Fam\Vornwald\Plan\)", R"(P:\Programs\Vornwald\Plan\)"}, // 55
    {R"(H:\Fam\Vornwald\Plan\)", R"(P:\Programs\Vornwald\Plan\)"}, // 56
    {R"(H:\Fam\Vornwald\Plan\)", R"(P:\Programs\Vornwald\Plan\)"}, // 57
    {R"(H:\Fam\Vornwald\Plan\)", R"(D:\ProgramData\Vornwald\Plan\)"}, // 58
    {R"(H:\Fam\Vornwald\Plan\)", R"(D:\ProgramData\Vornwald\Plan\)"}, // 59
    {R"(H:\Fam\Vornwald\Plan\)", R"(D:\ProgramData\Vornwald\Plan\)"}, // 60
    {R"(H:\Fam\Vornwald\Plan\)", R"(L:\Local\Vornwald\Plan\)"}, // 61
    {R"(H:\Fam\Vornwald\Plan\)", R"(P:\Programs\Vornwald\Plan\)"}, // 62
    {R"(H:\Fam\Vornwald\Plan\)", R"(L:\Local\Vornwald\Plan\)"}, // 63
    {R"(H:\Fam\Vornwald\Plan\)", R"(L:\Local\Vornwald\Plan\)"}, // 64
    {R"(H:\Fam\Vornwald\Plan\)", R"(D:\ProgramData\Vornwald\Common\WxInventory\)"}, // 65
    {R"(H:\Fam\Vornwald\Plan\)", R"(L:\Local\Vornwald\Plan\)"}, // 66
    {R"(H:\Fam\Vornwald\Plan\)", R"(L:\Local\Vornwald\Plan\)"}, // 67
    {R"(H:\Fam\Vornwald\Plan\)", R"(P:\Programs\Vornwald\Plan\)"}, // 68
    {R"(H:\Fam\Vornwald\Plan\Themes\)", R"(D:\ProgramData\Vornwald\Common\WxInventory\)"}, // 69
    {R"(H:\Fam\Vornwald\Plan\)", R"(P:\Programs\Vornwald\Plan\)"}, // 70
    {R"(H:\Fam\Vornwald\Common\Utilities\)", R"(P:\Programs\Vornwald\Common\Utilities\)"}, // 71
    {R"(H:\Fam\Vornwald\Common\Text\)", R"(D:\ProgramData\Vornwald\Common\Text\)"}, // 72
    {R"(H:\Fam\Vornwald\Common\Utilities\)", R"(U:\pilot\Vornwald\Common\Logfiles\)"}, // 73
    {R"(H:\Fam\Vornwald\Plan\)", R"(P:\Programs\Vornwald\Plan\)"}, // 74
    {R"(H:\Fam\Vornwald\Plan\)", R"(D:\ProgramData\Vornwald\Plan\)"}, // 75
    {R"(H:\Fam\Vornwald\Plan\)", R"(D:\ProgramData\Vornwald\Plan\)"}, // 76
    {R"(H:\Fam\Vornwald\Plan\)", R"(P:\Programs\Vornwald\Plan\)"}, // 77
    {R"(H:\Fam\Vornwald\Plan\)", R"(D:\ProgramData\Vornwald\Plan\)"}, // 78
    {R"(H:\Fam\Vornwald\Plan\)", R"(D:\ProgramData\Vornwald\Plan\)"}, // 79
    {R"(C:\)", R"(C:\)"}, // 80
    {R"(C:\)", R"(C:\)"}, // 81
    {R"(H:\Fam\Vornwald\Plan\)", R"(P:\Programs\Vornwald\Plan\)"}, // 82
    {R"(R:\Root\Vornwald\Downloads\)", R"(D:\ProgramData\Downloads\)"}, // 83
    {R"(H:\Fam\Vornwald\Plan\Formats\)", R"(D:\ProgramData\Vornwald\Plan\Formats\)"}, // 84
    {R"(H:\Fam\Vornwald\Plan\Data\)", R"(D:\ProgramData\Vornwald\Plan\Data\)"}, // 85
    {R"(H:\Fam\Vornwald\Plan\)", R"(D:\ProgramData\Vornwald\Plan\)"}, // 86
    {R"(H:\Fam\Vornwald\Plan\Data\)", R"(U:\pilot\Vornwald\Common\Data\)"}, // 87
    {R"(H:\Fam\Vornwald\Plan\Data\)", R"(U:\pilot\Vornwald\Common\Data\)"}, // 88
    {R"(H:\Fam\Vornwald\Plan\Data\)", R"(U:\pilot\Vornwald\Common\Data\)"}, // 89
    {R"(H:\Fam\Vornwald\Plan\)", R"(P:\Programs\Vornwald\Plan\)"}, // 90
    {R"(H:\Fam\Vornwald\Plan\DrawingAPI\)", R"(U:\pilot\Vornwald\Common\DrawingAPI\)"}, // 91
    {R"(H:\Fam\Vornwald\Plan\DrawingTools\)", R"(U:\pilot\Vornwald\Plan\DrawingTools\)"}, // 92
    {R"(D:\ProgramData\Vornwald\Common\NTQ\config\)", R"(D:\ProgramData\Vornwald\Common\NTQ\config\)"}, // 93
};

/// Which setting moves which row in which layout.
struct KeyRow
{
    int row;
    const char* legacy;
    const char* user;
};

inline constexpr KeyRow kKeys[] = {
    {1, "Root Path", "Root Path"},
    {2, "User Path", "User Path"},
    {3, "UserHidden Path", "UserHidden Path"},
    {4, "UserRoam Path", "UserRoam Path"},
    {5, "Public Path", "Public Path"},
    {6, "PublicHidden Path", "PublicHidden Path"},
    {9, "Common Path", ""},
    {10, "Data Path", "Data Path"},
    {11, "Data Path", "Data Path"},
    {12, "VPL Path", "VPL Path"},
    {13, "Bitmap Path", "Bitmap Path"},
    {14, "Track Path", "Track Path"},
    {15, "Cache Path", "Cache Path"},
    {16, "Notebook Path", "Notebook Path"},
    {17, "Checklist Path", "Checklist Path"},
    {18, "Vehicle Path", "Vehicle Path"},
    {19, "Aircraft Path", "Aircraft Path"},
    {20, "Terrain Path", "Terrain Path"},
    {21, "Font Path", "Font Path"},
    {22, "Charts Path", "Charts Path"},
    {23, "Approach Path", "Approach Path"},
    {24, "Report Path", "Report Path"},
    {25, "Theme Path", "Theme Path"},
    {26, "AptDiagram Path", "AptDiagram Path"},
    {27, "WxOverlay Path", "WxOverlay Path"},
    {28, "UserWP Path", "UserWP Path"},
    {29, "Route Path", "Route Path"},
    {30, "Wx Path", "Wx Path"},
    {31, "WxGraphics Path", "WxGraphics Path"},
    {32, "WxVector Path", ""},
    {33, "WxText Path", "WxText Path"},
    {34, "WxScript Path", "WxScript Path"},
    {35, "WxRender Path", "WxRender Path"},
    {36, "WxInventory Path", "WxInventory Path"},
    {38, "TerminalCharts Path", "TerminalCharts Path"},
    {39, "Training Path", "Training Path"},
    {40, "TrainingCommon Path", "TrainingCommon Path"},
    {41, "Theme Path", "UserThemes Path"},
    {43, "UpdateClient Path", "UpdateClient Path"},
    {45, "Smiths Path", "Smiths Path"},
    {46, "Theme Path", ""},
    {69, "Theme Path", ""},
    {71, "Utilities Path", "Utilities Path"},
    {80, "XMDataPath", "XMDataPath"},
    {81, "XMTextData", "XMTextData"},
    {83, "", "Downloads Path"},
    {92, "Drawing Tools Path", "Drawing Tools Path"},
    {93, "TerminalCharts Path", "TerminalCharts Path"},
};
// clang-format on

} // namespace vorn::test
