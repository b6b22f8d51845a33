#pragma once
// The rows of a results list as texts, for comparing whole lists.

#include <string>
#include <vector>

#include "controls/ListView.h"

namespace orbidex::test {

/// Each row as its text (with " (bold)" behind a bold one), then its cells, all
/// "|"-separated.
inline std::vector<std::string> RowTexts(ListView& list) {
    std::vector<std::string> rows;
    for (long i = 1; i <= list.ListItems.Count(); ++i) {
        const ListItem& row = list.ListItems(i);
        std::string text = row.Text() + (row.Bold ? " (bold)" : "");
        for (long k = 1; k <= row.ListSubItems.Count(); ++k) text += "|" + row.SubItems(k);
        rows.push_back(text);
    }
    return rows;
}

}  // namespace orbidex::test
