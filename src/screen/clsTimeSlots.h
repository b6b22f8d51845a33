#pragma once
// The table of time slots: one row of the day grid per slot, from the first hour to
// the last, each hour cut into the same number of slots.

#include <array>
#include <cstdint>
#include <string>

namespace orbidex {

class ListView;

class clsTimeSlots {
public:
    /// The highest slot number the table holds; slot numbers start at 1.
    static constexpr long MaxSlot = 302;

    /// Builds the labels and times of every slot from startHr, stopHr and
    /// numSlotsPerHour, and sets totSlots.
    void InitTimeArray();

    /// The slot (row) of a time, as the grid asks for it.  An hour before the first
    /// is moved to the first (in `hour` too), yet its minutes still count; an hour
    /// after the last gives the last slot, so late events pile up there.
    int16_t FindTimeSlot(long& hour, double minute) const;
    /// The same slot, or with `rawIndex` false the first row of the event list from
    /// that slot on whose second sub-item is empty (the slot itself when none is).
    /// A slot outside the list is brought into it with a message.
    int16_t FindTimeSlot(long& hour, double minute, ListView& list, bool rawIndex) const;

    /// The slot's time as "hhmm" (24 hours) and its row label ("9 am", "9:30"); ""
    /// outside the table.
    std::string hhmmGet(long i) const;
    std::string tmeGet(long i) const;
    /// Setting a slot outside the table does nothing.
    void hhmmLet(long i, const std::string& text);
    void tmeLet(long i, const std::string& text);

    int16_t startHr = 0;
    int16_t stopHr = 0;
    int16_t numSlotsPerHour = 0;
    int16_t totSlots = 0;

private:
    static bool inTable(long i) { return i >= 0 && i <= MaxSlot; }

    std::array<std::string, MaxSlot + 1> hhmm_{};
    std::array<std::string, MaxSlot + 1> tme_{};
};

}  // namespace orbidex
