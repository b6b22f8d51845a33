// The event array: reading, finding, shifting and the ordering that has no effect.
#include "diary/cDiaryRecords.h"

#include <algorithm>

#include "foundation/ProgramState.h"
#include "foundation/StringHelpers.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"

namespace orbidex {

cDiaryRecords glbEvents;

int16_t AsCurrentIndex(long index) {
    return index < 0 || index > INT16_MAX ? int16_t{-1} : static_cast<int16_t>(index);
}

cDiaryRecord& cDiaryRecords::events(long index) {
    if (index < 0) platform().MsgBox("Invalid event index passed to glbEvents:events", vbOKOnly, "");
    if (IsEmptySlot(index)) {
        blank_ = cDiaryRecord();
        return blank_;
    }
    return *slots_[static_cast<size_t>(index)];
}

bool cDiaryRecords::IsEmptySlot(long index) const {
    return index < 0 || index > totEvents() || slots_[static_cast<size_t>(index)] == nullptr;
}

void cDiaryRecords::SetUpperBound(long upperBound) {
    slots_.resize(static_cast<size_t>(std::max(upperBound + 1, 0L)));
}

cDiaryRecord& cDiaryRecords::CreateRecordAt(long index) {
    if (index < 0 || index > totEvents()) return events(index);
    slots_[static_cast<size_t>(index)] = std::make_unique<cDiaryRecord>();
    return *slots_[static_cast<size_t>(index)];
}

long cDiaryRecords::SelectDiaryRecordFromID(const std::string& id) {
    for (long i = 0; i <= totEvents(); ++i)
        if (events(i).ID == id) return i;
    return -1;
}

long cDiaryRecords::SelectDiaryRecordFromIDInMonth(const std::string& id, const std::string& yyyymm) const {
    if (id.empty()) return -1;
    for (long i = 0; i <= totEvents(); ++i) {
        if (IsEmptySlot(i)) continue;
        const cDiaryRecord& record = *slots_[static_cast<size_t>(i)];
        if (record.ID == id && Left(record.DateEvent, 6) == yyyymm) return i;
    }
    return -1;
}

bool cDiaryRecords::HasSelectedEvent() const {
    return !IsEmptySlot(gintcur) && !slots_[static_cast<size_t>(gintcur)]->ID.empty();
}

long cDiaryRecords::SelectDiaryRecordIndex(VbDate date, const std::string& time, const std::string& details) {
    const std::string day = FormatDate(date, "yyyymmdd");
    const std::string text = Trim(details);
    long found = -1;
    for (long i = 0; i <= totEvents(); ++i) {
        if (IsEmptySlot(i)) {
            glbLog.log("invlalid object here in SelectDiaryRecordIndex i=" + CStr(i) +
                           " from tot events = " + CStr(gIntTotalEvents),
                       3);
            continue;
        }
        const cDiaryRecord& record = events(i);
        if (record.DateEvent != day || Trim(record.details) != text) continue;
        if (record.TimeEvent == time) return i;
        found = i;
    }
    return found;
}

void cDiaryRecords::DeleteDiaryEventFromArray(long index) {
    if (index < 0) {
        events(index);  // shows that the index is invalid; nothing is taken out
        return;
    }
    platform().SetBusyCursor(true);
    for (long i = index; i < totEvents(); ++i) {
        const cDiaryRecord* next = IsEmptySlot(i + 1) ? nullptr : &events(i + 1);
        events(i).AssignRecord(next);
    }
    if (gintcur == index)
        gintcur = -1;
    else if (gintcur > index)
        --gintcur;
    const long remaining = loadedCount() - 1;
    setTotalEvents(remaining);
    SetUpperBound(remaining);
    SaveDiaryArray(kFieldDelimiter, nullptr);
    platform().SetBusyCursor(false);
}

long cDiaryRecords::loadedCount() const {
    return gIntTotalEvents == INT16_MAX ? std::max(totEvents(), static_cast<long>(INT16_MAX)) : gIntTotalEvents;
}

void cDiaryRecords::setTotalEvents(long count) {
    // The counter is 16 bits: a month of more events keeps them all in the array,
    // and the counter stays at its highest value.
    gIntTotalEvents = static_cast<int16_t>(std::clamp(count, -1L, static_cast<long>(INT16_MAX)));
}

void cDiaryRecords::SortDiaryArray() {
    // The sorted lines are not put back: the array keeps its file order, which the
    // views rely on for nothing, as each sorts for itself.
    std::vector<std::string> lines;
    for (long i = 0; i <= totEvents(); ++i) lines.push_back(events(i).FormatDiaryRecordAsCSV(kFieldDelimiter, ""));
    SortTexts(lines);
}

}  // namespace orbidex
