#pragma once

/// @file
/// Enumerations of the path manager. Applications store and pass them as integers: the values are part of the
/// interface.

/// Where an application's folders lie.
enum PathCfgVer : int
{
    PCV_LEGACY = 0, ///< everything under the installation folder
    PCV_VISTA = 1,  ///< data in the shell's per-user and public folders
    PCV_AUTO =
        2, ///< decided at initialisation: the per-user layout where the Home folder has the marker file "Vista.app"
};

/// Base of a composed folder: the defined paths 1 to 7, or the installation root.
enum KnownPath : int
{
    KP_ROOT = 0,
    KP_USER = 1,
    KP_USERHIDDEN = 2,
    KP_USERROAM = 3,
    KP_PUBLIC = 4,
    KP_PUBLICHIDDEN = 5,
    KP_PROGRAMFILES = 6,
    KP_INSTALLROOT = 7, ///< and above: the executable folder without "Vornwald\" and the module name
};

/// What is appended beneath the base.
enum VornPath : int
{
    VP_VORN = 0,          ///< "Vornwald\"
    VP_APP = 1,           ///< "Vornwald\", the module name and "\"
    VP_COMMON = 2,        ///< "Vornwald\Common\"
    VP_COMMONAPPDATA = 3, ///< as VP_APP, beneath the common application data whatever the base
    VP_NONE = 4,          ///< nothing
};

/// The kinds of folder. Names follow the settings keys; DP_PATHn have no key.
enum DefinedPath : int
{
    DP_EXE = 0,
    DP_ROOT = 1,
    DP_USER = 2,
    DP_USERHIDDEN = 3,
    DP_USERROAM = 4,
    DP_PUBLIC = 5,
    DP_PUBLICHIDDEN = 6,
    DP_PATH7 = 7,
    DP_PATH8 = 8,
    DP_COMMON = 9,
    DP_DATA = 10,
    DP_DATA2 = 11,
    DP_VPL = 12,
    DP_BITMAP = 13,
    DP_TRACK = 14,
    DP_CACHE = 15,
    DP_NOTEBOOK = 16,
    DP_CHECKLIST = 17,
    DP_VEHICLE = 18,
    DP_AIRCRAFT = 19,
    DP_TERRAIN = 20,
    DP_FONT = 21,
    DP_CHARTS = 22,
    DP_APPROACH = 23,
    DP_REPORT = 24,
    DP_THEME = 25,
    DP_APTDIAGRAM = 26,
    DP_WXOVERLAY = 27,
    DP_USERWP = 28,
    DP_ROUTE = 29,
    DP_WX = 30,
    DP_WXGRAPHICS = 31,
    DP_WXVECTOR = 32,
    DP_WXTEXT = 33,
    DP_WXSCRIPT = 34,
    DP_WXRENDER = 35,
    DP_WXINVENTORY = 36,
    DP_PATH37 = 37,
    DP_TERMINALCHARTS = 38,
    DP_TRAINING = 39,
    DP_TRAININGCOMMON = 40,
    DP_USERTHEMES = 41,
    DP_PATH42 = 42,
    DP_UPDATECLIENT = 43,
    DP_PATH44 = 44,
    DP_SMITHS = 45,
    DP_THEME2 = 46,
    DP_PATH47 = 47,
    DP_PATH48 = 48,
    DP_PATH49 = 49,
    DP_PATH50 = 50,
    DP_PATH51 = 51,
    DP_PATH52 = 52,
    DP_PATH53 = 53,
    DP_PATH54 = 54,
    DP_PATH55 = 55,
    DP_PATH56 = 56,
    DP_PATH57 = 57,
    DP_PATH58 = 58,
    DP_PATH59 = 59,
    DP_PATH60 = 60,
    DP_PATH61 = 61,
    DP_PATH62 = 62,
    DP_PATH63 = 63,
    DP_PATH64 = 64,
    DP_PATH65 = 65,
    DP_PATH66 = 66,
    DP_PATH67 = 67,
    DP_PATH68 = 68,
    DP_PATH69 = 69,
    DP_PATH70 = 70,
    DP_UTILITIES = 71,
    DP_PATH72 = 72,
    DP_PATH73 = 73,
    DP_PATH74 = 74,
    DP_PATH75 = 75,
    DP_PATH76 = 76,
    DP_PATH77 = 77,
    DP_PATH78 = 78,
    DP_PATH79 = 79,
    DP_XMDATAPATH = 80,
    DP_XMTEXTDATA = 81,
    DP_PATH82 = 82,
    DP_DOWNLOADS = 83,
    DP_PATH84 = 84,
    DP_PATH85 = 85,
    DP_PATH86 = 86,
    DP_PATH87 = 87,
    DP_PATH88 = 88,
    DP_PATH89 = 89,
    DP_PATH90 = 90,
    DP_PATH91 = 91,
    DP_DRAWINGTOOLS = 92,
    DP_TERMINALCHARTS2 = 93,
    DP_COUNT = 94,
};
