#pragma once
// Fills a list control from a text file, one entry per non-empty line.

#include <string>

namespace orbidex {

class ComboBox;
class ListBox;
class ListView;

/// Fills the list from `file`.  Unless `keep` is 1 the list is emptied first.  In a
/// list with tick boxes each line loses one trailing comma and its entry is ticked.
/// An empty file name does nothing; a missing file is logged and changes nothing.
void LoadFileToListBox(ListBox& list, const std::string& file, int keep = 0);
void LoadFileToListBox(ComboBox& list, const std::string& file, int keep = 0);
void LoadFileToListBox(ListView& list, const std::string& file, int keep = 0);

}  // namespace orbidex
