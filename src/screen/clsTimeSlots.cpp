#include "screen/clsTimeSlots.h"

#include "controls/ListView.h"
#include "foundation/VbString.h"
#include "platform/Platform.h"

namespace orbidex {

namespace {

std::string twoDigits(long minutes) {
    const std::string text = CStr(minutes);
    return Len(text) == 1 ? "0" + text : text;
}

std::string padThreeToFour(const std::string& text) {
    return Len(Trim(text)) == 3 ? "0" + text : text;
}

}  // namespace

std::string clsTimeSlots::hhmmGet(long i) const {
    return inTable(i) ? hhmm_[static_cast<size_t>(i)] : "";
}

std::string clsTimeSlots::tmeGet(long i) const {
    return inTable(i) ? tme_[static_cast<size_t>(i)] : "";
}

void clsTimeSlots::hhmmLet(long i, const std::string& text) {
    if (inTable(i)) hhmm_[static_cast<size_t>(i)] = text;
}

void clsTimeSlots::tmeLet(long i, const std::string& text) {
    if (inTable(i)) tme_[static_cast<size_t>(i)] = text;
}

void clsTimeSlots::InitTimeArray() {
    long i = 0;
    // The inner counter outlives each hour: the next hour's first slot is built from
    // the value it was left at, which gives ":56" instead of ":00" for seven slots.
    long k = 0;
    for (long h = startHr; h <= stopHr && i < MaxSlot; ++h) {
        const bool afternoon = h >= 13;
        const long shown = afternoon ? h - 12 : h;
        const std::string suffix = (afternoon || h == 12) ? "pm" : "am";
        ++i;
        tmeLet(i, CStr(shown) + " " + suffix);
        if (numSlotsPerHour < 1) numSlotsPerHour = 1;
        const long step = 60 / numSlotsPerHour;

        std::string minutes = CStr(step * k);
        if (minutes == "60") minutes = "00";
        if (Len(minutes) == 1) minutes = "0" + minutes;
        hhmmLet(i, (h < 10 ? "0" : "") + CStr(h) + minutes);

        for (k = 1; k <= numSlotsPerHour - 1 && i < MaxSlot; ++k) {
            const std::string slotMinutes = twoDigits(step * k);
            ++i;
            tmeLet(i, CStr(shown) + ":" + slotMinutes);
            if (suffix == "am")
                hhmmLet(i, CStr(shown) + slotMinutes);
            else if (shown == 12)
                hhmmLet(i, "12" + slotMinutes);
            else
                hhmmLet(i, CStr(shown + 12) + slotMinutes);
            hhmmLet(i, padThreeToFour(hhmmGet(i)));
        }
        hhmmLet(i, padThreeToFour(hhmmGet(i)));
    }
    totSlots = static_cast<int16_t>(i);
}

int16_t clsTimeSlots::FindTimeSlot(long& hour, double minute) const {
    if (hour < startHr) hour = startHr;
    if (hour > stopHr) return totSlots;
    const long ndx = (hour - startHr) * numSlotsPerHour + 1 + Int(minute / 60 * numSlotsPerHour);
    return static_cast<int16_t>(ndx);
}

int16_t clsTimeSlots::FindTimeSlot(long& hour, double minute, ListView& list, bool rawIndex) const {
    long ndx = FindTimeSlot(hour, minute);
    if (rawIndex) return static_cast<int16_t>(ndx);
    if (ndx < 1) {
        ndx = 1;
        platform().MsgBox("ndx under 1", vbOKOnly, "");
    }
    if (ndx > list.ListItems.Count()) {
        ndx = list.ListItems.Count();
        platform().MsgBox("ndx over limit", vbOKOnly, "");
    }
    const auto freeRow = [&list](long row) { return Trim(list.ListItems(row).SubItems(2)).empty(); };
    if (freeRow(ndx)) return static_cast<int16_t>(ndx);
    for (long row = ndx + 1; row <= list.ListItems.Count(); ++row)
        if (freeRow(row)) return static_cast<int16_t>(row);
    return static_cast<int16_t>(ndx);
}

}  // namespace orbidex
