#include "foundation/DateHelpers.h"

#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"

namespace orbidex {

VbDate DateFromYYYYMMDD(const std::string& text) {
    return DateSerial(ValInt(Mid(text, 1, 4)), ValInt(Mid(text, 5, 2)),
                      ValInt(Right(text, 2)));
}

bool IsDiaryDate(VbDate date) {
    return date >= DateSerial(kFirstDiaryYear, 1, 1) && date < DateSerial(kLastDiaryYear, 12, 31) + 1;
}

std::string FormatHHMM(int hour, int minute) {
    return FormatNumber(hour, "00") + FormatNumber(minute, "00");
}

std::string FormatDiaryDate(const std::string& yyyymmdd, int style) {
    const VbDate d = DateFromYYYYMMDD(yyyymmdd);
    switch (style) {
        case 0:
        case 1: return FormatDate(d, "dd-mmm-yy");
        case 2: return FormatDate(d, "mmm-dd");
        case 3: return FormatDate(d, "mmm-dd, ddd");
        case 4:
        case 5:
        case 6: return FormatDate(d, "yyyy-mm-dd, ddd");
        case 7: return FormatDate(d, "ddd, d-mmm-yyyy");
        case 9: return FormatDate(d, "ddddd");
        default: return "";
    }
}

VbDate GetViewStartDate(VbDate date) {
    if (glbNumDaysToDisplay == 1) return date;
    if (glbNumDaysToDisplay == 7) {
        VbDate d = date;
        while (FormatDate(d, "ddd") != "Mon") d -= 1;
        return d;
    }
    if (glbNumDaysToDisplay >= 11) return DateSerial(Year(date), Month(date), 1);
    return 0;
}

int ParseHourText(const std::string& timeText) {
    int hour = ValInt(Left(timeText, 2));
    if (Right(timeText, 2) == "PM") hour += 12;
    return hour;
}

}  // namespace orbidex
