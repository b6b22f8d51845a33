#pragma once
// The calendar's tests: the program fixture with the settings of a first run read in
// (9 am to 6 pm in half hours, day view, grid), colours that differ from each other,
// and helpers for monthly files and the main window's controls.

#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "ProgramFixture.h"
#include "controls/OleColor.h"
#include "foundation/VbDate.h"

namespace orbidex {
class FlexGrid;
}

namespace orbidex::test {

// The colours the fixture gives the calendar.
constexpr OleColor kNormalFore = 0x101010;
constexpr OleColor kNormalBack = 0xF0F4F4;
constexpr OleColor kMultiFore = 0x202020;
constexpr OleColor kMultiBack = 0xC0C0FF;
constexpr OleColor kHeadingFore = 0x303030;
constexpr OleColor kHeadingBack = 0xAFC1C2;
constexpr OleColor kWeekendFore = 0x404040;
constexpr OleColor kWeekendBack = 0xE0E9E9;
constexpr OleColor kSpanningBack = 0xC0C0C0;
constexpr OleColor kTodayFore = 0x505050;
constexpr OleColor kPCFileFore = 0x606060;
constexpr OleColor kPCFileBack = 0x707070;

class CalendarFixture : public ProgramFixture {
protected:
    void SetUp() override;

    /// Changes settings ({section, key, value}) in the file and reads them all again.
    void Settings(const std::vector<std::tuple<std::string, std::string, std::string>>& changes);
    /// Writes a monthly file of the data folder ("D200406.dat"), lines ended by CR LF,
    /// and loads the month of `date`.
    void WriteMonth(const std::string& name, const std::vector<std::string>& lines) const;
    void Load(VbDate date) const;
    /// Draws the calendar side for `date` as the calendar's value.
    void Draw(VbDate date) const;

    /// A cell's text, back and fore colour of the main window's grid.
    static std::string Text(long row, long col);
    static OleColor Back(long row, long col);
    static OleColor Fore(long row, long col);
    static FlexGrid& Grid();
    /// Clicks a cell and asks GetEventFromGrid; gives the first panel's text.
    static std::string Click(long row, long col, bool* blank = nullptr);

    bool Logged(const std::string& message) const;

    static VbDate June(int day) { return DateSerial(2004, 6, day); }
};

/// An event line's fields: the usual ones filled, the markers and reminder to set.
struct Event {
    std::string id{};
    std::string date{};
    std::string time{};
    std::string details{};
    std::string length = "30";
    std::string reference = "Phone";
    std::string action = "Call";
    std::string status{};
    std::string dateRemind{};
    std::string timeRemind{};
    std::string url{};

    std::string Line() const;
};

inline Event MakeEvent(std::string id, std::string date, std::string time, std::string details,
                       std::string length = "30") {
    Event event;
    event.id = std::move(id);
    event.date = std::move(date);
    event.time = std::move(time);
    event.details = std::move(details);
    event.length = std::move(length);
    return event;
}

}  // namespace orbidex::test
