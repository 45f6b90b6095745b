#pragma once

#include <VornCommon.h>

#include <string>

/// @file
/// What the sample notes in the process's log.

/// Begins the log of this run: in memory, and in a file of the user's folder where that can be written.
void BeginLog();

/// Notes a message with its weight and the time in UTC. Once the user can be spoken to, the log comes up for a message
/// that is grave enough by the user's choice.
void LogNote(LogStatus weight, const std::string& message);

/// From now on somebody is there to read: shows the log at once when something grave was noted before.
void SpeakUp();

/// Ends the log.
void EndLog();
