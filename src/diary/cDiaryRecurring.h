#pragma once
// The place kept for events that repeat.  It holds no behaviour: every operation
// returns at once and its file is never opened.  Repeated events are made as
// ordinary events, one per date, by the multi-day dialog.

#include <string>

#include "platform/Platform.h"

namespace orbidex {

class cDiaryRecurring {
public:
    /// The count as it stands; nothing fills it.
    int Count() const { return count_; }
    void SaveRecurringEvents() {}
    void LoadRecurringEvents() {}
    void GetDummyRecordsForDate(VbDate) {}
    void Delete() {}
    void Edit() {}
    void Add() {}
    void ListRecurringEvents() {}

    const std::string& fname() const { return fname_; }
    void fname(const std::string& name) { fname_ = name; }

private:
    std::string fname_;
    int count_ = 0;
};

extern cDiaryRecurring glbRecurring;

}  // namespace orbidex
