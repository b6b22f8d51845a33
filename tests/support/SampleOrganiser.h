#pragma once
// A user's organiser for the window tests and the runs of the real program: 30 tasks
// due around a given day (five of them overdue, nine finished, seven urgent) and 10
// notes in their colours with their body files.

#include <string>

#include "platform/Platform.h"

namespace orbidex::test {

/// The lines of the task file for `today`, sorted as the program saves them.
std::string SampleTaskFile(VbDate today);
/// Writes the task file, the note list and the notes folder into `dataFolder`
/// (stored form, ending in "\").
void WriteSampleOrganiser(const std::string& dataFolder, VbDate today);

}  // namespace orbidex::test
