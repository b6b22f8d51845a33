#pragma once
// Small text routines that carry a decision of the program's own.

#include <string>
#include <vector>

namespace orbidex {

/// "N min  ", "H hr M min  ", or with gHoursPerDay of 2 or more "D days H hours M min  ".
std::string FormatMinutes(long minutes);
/// Each carriage return and each line feed becomes one blank.
std::string ReplaceLineBreaks(const std::string& text);
/// Keeps blanks, digits, the characters 64 to 91 and lower-case letters.
std::string KeepPlainCharacters(const std::string& text);
/// The text before the first character 0.
std::string TrimAtNull(const std::string& text);
/// First character in capitals, the rest in small letters.
std::string ProperCase(const std::string& text);
/// Adds one blank for each position from the text's length to `width`, so a text of
/// 3 padded to 5 has 6 characters.
std::string PadWithBlanks(const std::string& text, long width);
/// Splits `text` at `delimiter` into at most `maximum` pieces (the last holds the
/// rest) and returns their number.  A text that starts and ends with the delimiter
/// has its pieces at 1 to n - 2.
long SplitToArray(std::vector<std::string>& array, const std::string& delimiter, long maximum,
                  const std::string& text);
/// Sorts ascending by byte value, in place: a quicksort with a random pivot.
void SortTexts(std::vector<std::string>& texts);
/// The same over the 0-based index range [low, high].
void SortTexts(std::vector<std::string>& texts, long low, long high);
/// Starts a process and waits for its end, letting window events run.
bool RunAndWait(const std::string& commandLine);

}  // namespace orbidex
