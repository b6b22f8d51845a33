// The reschedule dialog: its choices count from the event's present date and time,
// and the main window's calendar follows the date chosen.
#include "DialogFixture.h"
#include "dialogs/frmRescheduleEvent.h"

using namespace orbidex;
using orbidex::test::Fields;

namespace {

// Thursday 10 June 2004 at 10:30, reminded at 10:15.
const std::string kDentist = Fields({"D200406050002", "20040610", "Phone", "1030", "30", "Call", "fred", "", "",
                                     "20040610", "1015", "Normal", "", "Office", "Dentist"});

}  // namespace

class RescheduleDialogTest : public orbidex::test::DialogFixture {
protected:
    void Open() {
        gCurrentEvent.GetDiaryRecordFromText(kDentist);
        form.Load();
    }
    std::string Final() const {
        return FormatDate(form.dpFinalDate.Value, "yyyymmdd") + " " + FormatDate(form.dpFinalTime.Value, "hhmm");
    }

    frmRescheduleEvent form;
};

TEST_F(RescheduleDialogTest, OpeningAndOkChangesNothingAndKeepsTheOldReminder) {
    glbConfig.dialogCancelled = true;
    Open();
    EXPECT_FALSE(glbConfig.dialogCancelled);
    EXPECT_EQ(Final(), "20040610 1030");
    EXPECT_EQ(MainForm().MonthView1.Value(), DateSerial(2004, 6, 10)) << "the main window shows the day";
    form.cmdOK.UserClick();
    EXPECT_EQ(gCurrentEvent.FormatDiaryRecordAsCSV("\x1F", ""), kDentist) << "the reminder is not worked out again";
    EXPECT_TRUE(LoggedMessage("Reschedule form: cmdOK_Click - final record = " + kDentist));
    EXPECT_EQ(ReadBytes(Data("debug.log")), "20040605,09:30:12,reschedule-OK : finalDate=2004-06-10\r\n");
}

TEST_F(RescheduleDialogTest, TheChoicesCountFromThePresentDateAndTime) {
    Open();
    const std::pair<std::function<void()>, std::string> steps[] = {
        {[&] { form.optMoveAhead(1).UserClick(); }, "20040617 1030"},
        {[&] { form.optMoveAhead(1).UserClick(); }, "20040617 1030"},  // next week twice is one week
        {[&] { form.optMoveAhead(2).UserClick(); }, "20040624 1030"},
        {[&] { form.optWhen(2).UserClick(); }, "20040624 0900"},
        {[&] { form.optWhen(3).UserClick(); }, "20040624 1400"},
        {[&] { form.optWhen(0).UserClick(); }, "20040624 1400"},  // no free slot is looked for
        {[&] { form.optMoveAhead(0).UserClick(); }, "20040611 1400"},
        {[&] { form.cmbBrowse(1).UserClick(); }, "20040618 1400"},  // by the 7 days the view shows
        {[&] { form.cmbBrowse(0).UserClick(); }, "20040611 1400"},
        {[&] { form.dpFinalDate.UserPickDate(DateSerial(2004, 7, 2)); }, "20040702 1400"},
        {[&] { form.optMoveAhead(3).UserClick(); }, "20040702 1400"},  // the date as chosen stays
        {[&] { form.optWhen(1).UserClick(); }, "20040702 1030"},
    };
    glbConfig.DayWeekMonth = 7;  // a week view
    for (const auto& [step, expected] : steps) {
        step();
        EXPECT_EQ(Final(), expected);
        EXPECT_EQ(FormatDate(MainForm().MonthView1.Value, "yyyymmdd"), Left(expected, 8));
    }
    form.txtDetails.UserEdit("Dentist (moved)", 15);
    form.cmdOK.UserClick();
    EXPECT_EQ(gCurrentEvent.DateEvent + " " + gCurrentEvent.TimeEvent + " " + gCurrentEvent.details,
              "20040702 1030 Dentist (moved)");

    Open();
    form.optMoveAhead(2).UserClick();
    form.UserClose();
    EXPECT_TRUE(glbConfig.dialogCancelled) << "closing the window cancels";
}
