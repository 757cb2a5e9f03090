// The test program started anew, to see what the module does to a process.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

std::string OwnPath();
std::string OwnFolder();

/// Copies this program and the module, and nothing else, into a folder that it makes.
/// @return the path of the copy; empty when it could not be made
std::string CopyProgramTo(const std::string& folder);

/// Makes the started program a client that shows the settings window, the condition-order mode
/// first and as it stands in the user's file, and ends with kSettingsShown plus what the window
/// answered.
inline const char kShowSettings[] = "--show-settings";
constexpr int kSettingsShown = 70;

/// Makes the started program a client that saves a record of zeros, and does nothing else.
inline const char kSaveParam[] = "--save-param";

/// Holds a client that the module starts anew, until a test has seen it.
class RestartedClient
{
public:
    RestartedClient();
    ~RestartedClient();
    RestartedClient(const RestartedClient&) = delete;
    RestartedClient& operator=(const RestartedClient&) = delete;

    void LetEnd() const { SetEvent(m_mayEnd); }

private:
    HANDLE m_mayEnd;
};

/// What the started program does for a test.
/// @return its exit code; none for the ordinary run
std::optional<int> RunAsChild(int count, char** arguments);
