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
    std::string FinalDate() const { return FormatDate(form.dpFinalDate.Value, "yyyymmdd"); }
    std::string FinalTime() const { return FormatDate(form.dpFinalTime.Value, "hhmm"); }

    frmRescheduleEvent form;
};

TEST_F(RescheduleDialogTest, OpeningAndOkChangesNothingAndKeepsTheOldReminder) {
    glbConfig.dialogCancelled = true;
    Open();
    EXPECT_FALSE(glbConfig.dialogCancelled);
    EXPECT_EQ(form.Caption(), "Rescheduling...");
    EXPECT_TRUE(form.optMoveAhead(4).Value());
    EXPECT_TRUE(form.optWhen(1).Value());
    EXPECT_EQ(FinalDate(), "20040610");
    EXPECT_EQ(FinalTime(), "1030");
    EXPECT_EQ(form.txtDetails.Text(), "Dentist");
    EXPECT_EQ(MainForm().MonthView1.Value(), DateSerial(2004, 6, 10)) << "the main window shows the day";

    form.cmdOK.UserClick();
    EXPECT_TRUE(form.IsUnloaded());
    EXPECT_EQ(gCurrentEvent.FormatDiaryRecordAsCSV("\x1F", ""), kDentist) << "the reminder is not worked out again";
    EXPECT_TRUE(glbConfig.dataChanged);
    EXPECT_TRUE(Logged("Reschedule form: cmdOK_Click - final record = " + kDentist));
}

TEST_F(RescheduleDialogTest, HowFarAheadCountsFromThePresentDateAndBrowsingStepsByTheView) {
    Open();
    form.optMoveAhead(1).UserClick();
    form.optMoveAhead(1).UserClick();
    EXPECT_EQ(FinalDate(), "20040617") << "next week twice is still one week";
    form.optMoveAhead(2).UserClick();
    EXPECT_EQ(FinalDate(), "20040624");
    form.optMoveAhead(0).UserClick();
    EXPECT_EQ(FinalDate(), "20040611");
    EXPECT_EQ(MainForm().MonthView1.Value(), DateSerial(2004, 6, 11));

    glbNumDaysToDisplay = 7;
    form.cmbBrowse(1).UserClick();
    EXPECT_EQ(FinalDate(), "20040618");
    form.cmbBrowse(0).UserClick();
    form.cmbBrowse(0).UserClick();
    EXPECT_EQ(FinalDate(), "20040604");
    form.optMoveAhead(3).UserClick();
    EXPECT_EQ(FinalDate(), "20040604") << "the date as chosen stays";
    form.dpFinalDate.UserPickDate(DateSerial(2004, 7, 2));
    EXPECT_EQ(MainForm().MonthView1.Value(), DateSerial(2004, 7, 2));
    form.optMoveAhead(4).UserClick();
    EXPECT_EQ(FinalDate(), "20040610");
}

TEST_F(RescheduleDialogTest, AtWhatTimeGivesMorningAfternoonOrTheSameTime) {
    Open();
    form.optWhen(2).UserClick();
    EXPECT_EQ(FinalTime(), "0900");
    form.optWhen(3).UserClick();
    EXPECT_EQ(FinalTime(), "1400");
    form.optWhen(0).UserClick();
    EXPECT_EQ(FinalTime(), "1400") << "finding a free slot leaves the time";
    form.optWhen(1).UserClick();
    EXPECT_EQ(FinalTime(), "1030");

    form.optWhen(3).UserClick();
    form.optMoveAhead(1).UserClick();
    form.txtDetails.UserEdit("Dentist (moved)", 15);
    form.cmdOK.UserClick();
    EXPECT_EQ(gCurrentEvent.DateEvent, "20040617");
    EXPECT_EQ(gCurrentEvent.TimeEvent, "1400");
    EXPECT_EQ(gCurrentEvent.details, "Dentist (moved)");
    EXPECT_EQ(ReadBytes(Data("debug.log")), "20040605,09:30:12,reschedule-OK : finalDate=2004-06-17\r\n");
}

TEST_F(RescheduleDialogTest, CancelAndClosingLeaveTheEventAlone) {
    Open();
    form.optMoveAhead(2).UserClick();
    form.cmdCancel.UserClick();
    EXPECT_TRUE(glbConfig.dialogCancelled);
    EXPECT_EQ(gCurrentEvent.DateEvent, "20040610");

    Open();
    EXPECT_FALSE(glbConfig.dialogCancelled);
    form.optMoveAhead(2).UserClick();
    form.UserClose();
    EXPECT_TRUE(glbConfig.dialogCancelled);
    EXPECT_EQ(gCurrentEvent.DateEvent, "20040610");
    EXPECT_FALSE(FileExists(Data("debug.log")));
}
