#pragma once
// The calendar's tests: the program fixture with the settings of a first run read in
// (9 am to 6 pm in half hours, day view, grid) and colours that differ from each
// other; helpers for monthly files and the main window's grid.

#include <string>
#include <tuple>
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

/// The event with one field changed.
inline Event With(Event event, std::string Event::*field, const std::string& value) {
    event.*field = value;
    return event;
}

class CalendarFixture : public ProgramFixture {
protected:
    void SetUp() override;

    /// An event of `date` ("yyyymmdd") with an identifier of its own.
    Event E(const std::string& date, const std::string& time, const std::string& details,
            const std::string& length = "30");
    /// Changes settings ({section, key, value}) in the file and reads them all again.
    void Settings(const std::vector<std::tuple<std::string, std::string, std::string>>& changes);
    void View(const std::string& days) { Settings({{"calendar", "DayWeekMonth", days}}); }
    /// Writes the monthly file of `month` (a day of it) with the events.
    void WriteMonth(VbDate month, const std::vector<Event>& events) const;
    /// Draws the calendar side for `date` as the calendar's value.
    static void Draw(VbDate date);
    /// Writes the month of `date` with the events, loads it and draws it.
    void Show(VbDate date, const std::vector<Event>& events) const;

    /// A cell's text, back and fore colour of the main window's grid.
    static std::string Text(long row, long col);
    static OleColor Back(long row, long col);
    static OleColor Fore(long row, long col);
    static FlexGrid& Grid();
    /// Asks GetEventFromGrid about a cell; gives the first panel's text.
    static std::string Click(long row, long col, bool* blank = nullptr);
    bool Logged(const std::string& message) const;

    static VbDate June(int day) { return DateSerial(2004, 6, day); }

private:
    int nextId_ = 0;
};

}  // namespace orbidex::test
