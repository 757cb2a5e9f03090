// Starting the client anew.
#pragma once

/// Starts the running executable once more, with -AlreadyRunNoPrompt as its command line, and ends
/// this process at once, whether or not the start worked. Nothing of the client is shut down in order.
/// Returns only when the process could not be ended.
void RestartClient();
