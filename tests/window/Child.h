// The test program started anew, to see what loading the module does to a process.
#pragma once

#include <string>

std::string OwnPath();
std::string OwnFolder();

/// Runs a program with one argument in a folder and waits for it.
/// @return what it printed, without line ends
std::string OutputOfChild(const std::string& program, const std::string& argument,
                          const std::string& folder);

/// What the started program does: answers a question of a test and is true, or is false for the
/// ordinary run.
bool AnswerAsChild(int count, char** arguments);
