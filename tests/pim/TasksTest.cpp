// Tasks: the line of one task, and the task list over its file: loading and saving
// a hand-written file, adding, editing, completing, deleting, numbering, finding,
// listing and the HTML page.
#include <tuple>

#include "PimFixture.h"
#include "controls/ListView.h"
#include "foundation/VbDate.h"
#include "pim/cTasks.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"

using namespace orbidex;

namespace {

// The lines of tests/pim/golden/data/D_tasks.dat, by what they are.
const std::string kUrgentOverdue = "D200406010000";  // active, priority 1, reminder of 3 June
const std::string kDone = "D200406010001";           // status "Done"
const std::string kInProgress = "N200406040001";     // active, length "-5", foreign bytes
const std::string kCompleted = "N200406050001";      // status "completed "

}  // namespace

class TasksTest : public test::PimFixture {
protected:
    void LoadGoldenTasks() {
        CopyGoldenData();
        glbTasks.init(gStrTasksFile);
    }
    void LoadTasks(const std::vector<std::string>& lines) {
        WriteLines("D_tasks.dat", lines);
        glbTasks.init(gStrTasksFile);
    }
    static cTask Task(const std::string& details, const std::string& date = "20040605",
                      const std::string& time = "1000") {
        cTask task;
        task.SetDefault();
        task.details = details;
        task.DateCreated = date;
        task.timeCreated = time;
        return task;
    }
    ListView list;
};

TEST_F(TasksTest, ALineReadsIntoItsFifteenFieldsAndIsWrittenBackByteForByte) {
    const std::string line = Golden("data/D_tasks.dat").substr(0, Golden("data/D_tasks.dat").find('\r'));
    cTask task;
    task.title = "kept";
    ASSERT_TRUE(task.CreateTaskFromTextLine(line, "\x1F"));
    EXPECT_EQ(std::vector<std::string>({task.ID, task.DateCreated, task.Reference, task.timeCreated, task.length,
                                        task.ActionID, task.ContactID, task.RemindDate, task.RemindTime, task.Priority,
                                        task.ActionToPerform, task.details}),
              std::vector<std::string>({kUrgentOverdue, "20040601", "Phone", "0900", "30", "Phone", "Mary Jones",
                                        "20040603", "0900", "1 - urgent", "Office", "Ring the bank about the loan"}));
    EXPECT_EQ(task.title, "kept");  // not in the line: untouched
    EXPECT_EQ(task.FormatRecordAsCSV("\x1F", "\r\n"), line);
}

TEST_F(TasksTest, LengthsBelowZeroReadAsThirtyAndFinishedStatusesMakeATaskInactive) {
    // length, as read
    for (const auto& [length, read] : std::vector<std::pair<std::string, std::string>>{
             {"-5", "30"}, {"0", "0"}, {"", ""}, {"-0", "-0"}, {"45", "45"}, {"x", "x"}}) {
        cTask task;
        task.CreateTaskFromTextLine(
            Line({"N1", "20040605", "", "0900", length, "", "", "", "", "", "", "", "", "", "text"}), "\x1F");
        EXPECT_EQ(task.length, read) << length;
    }
    // status, active
    for (const auto& [status, active] : std::vector<std::pair<std::string, bool>>{{"completed ", false},
                                                                                  {"  DONE", false},
                                                                                  {"Over", false},
                                                                                  {"finished", false},
                                                                                  {"Complete", true},
                                                                                  {"finished.", true},
                                                                                  {"", true},
                                                                                  {"In progress", true}}) {
        cTask task;
        task.status = status;
        EXPECT_EQ(task.isTaskActive(), active) << status;
    }
}

TEST_F(TasksTest, ABrokenLineIsReportedAndKeepsTheFieldsReadBeforeTheBreak) {
    const std::string report = "Error in cTask.CreateTaskFromTextLine Error=5 = Invalid procedure call or argument";
    // line, ID read, details (set to "old" before)
    const std::vector<std::tuple<std::string, std::string, std::string>> cases = {
        {Closed("N200406050001|20040605||0900|30||||||||||cut short"), "N200406050001", "old"},
        {"\x1F", "", "old"},
        {"no delimiter at all", "old", "old"},
        {"\xFF\xFE\x1F\x80", "\xFF\xFE", "old"},
    };
    for (const auto& [line, id, details] : cases) {
        platform_.ClearTranscript();
        cTask task;
        task.ID = "old";
        task.details = "old";
        EXPECT_FALSE(task.CreateTaskFromTextLine(line, "\x1F"));
        EXPECT_EQ(task.ID, id);
        EXPECT_EQ(task.details, details);
        EXPECT_EQ(platform_.MessageTexts(), std::vector<std::string>{report});
    }
    // A line of 100 fields reads its first fifteen.
    std::string hundred;
    for (int i = 1; i <= 100; ++i) hundred += std::to_string(i) + "\x1F";
    cTask task;
    EXPECT_TRUE(task.CreateTaskFromTextLine(hundred, "\x1F"));
    EXPECT_EQ(task.ID + "|" + task.details, "1|15");
    // An empty line gives the defaults.
    EXPECT_TRUE(task.CreateTaskFromTextLine("", "\x1F"));
    EXPECT_EQ(task.DateCreated + " " + task.timeCreated + " " + task.length + " " + task.ID, "20040605 0930 60 ");
}

TEST_F(TasksTest, ATaskWithoutIdentityHasNoLine) {
    cTask task = Task("");
    task.timeCreated = " ";
    EXPECT_EQ(task.FormatRecordAsCSV("\x1F", "\r\n"), "");
    task.Priority = "1";  // the other fields do not count
    EXPECT_EQ(task.FormatRecordAsCSV("\x1F", "\r\n"), "");
    task.details = "Call Bob";
    EXPECT_EQ(task.FormatRecordAsCSV("\x1F", "\r\n"),
              Line({"", "20040605", "", " ", "60", "", "", "", "", "", "", "1", "", "", "Call Bob"}));
}

TEST_F(TasksTest, AHandWrittenFileLoadsUnchangedAndSavesBackByteForByte) {
    LoadGoldenTasks();
    EXPECT_EQ(glbTasks.Count(), 4);
    EXPECT_EQ(glbTasks.CountActive(), 2);
    for (long i = 0; i < 4; ++i) EXPECT_EQ(glbTasks.Table().Item(i), Lines("D_tasks.dat")[static_cast<size_t>(i)]);
    glbTasks.SaveToFile();
    EXPECT_EQ(ReadBytes(gStrTasksFile), Golden("data/D_tasks.dat"));
    EXPECT_TRUE(platform_.Transcript().empty());
}

TEST_F(TasksTest, AddingGivesTheNextIdentifierAndListsTheActiveTasks) {
    glbTasks.init(gStrTasksFile);  // no file yet
    const cTask first = Task("Book the car service");
    glbTasks.Add(list, &first);
    EXPECT_EQ(ReadBytes(gStrTasksFile), Line({"N200406050001", "20040605", "", "1000", "60", "", "", "", "", "", "", "",
                                              "", "", "Book the car service"}) +
                                            "\r\n");

    // Without a task the editor opens on a new one.
    QueueEditor("frmEditTask", [] {
        EXPECT_EQ(gCurrentTask.DateCreated + " " + gCurrentTask.timeCreated, "20040605 0930");
        gCurrentTask.details = "Renew the passport";
        gCurrentTask.status = "Done";
    });
    glbTasks.Add(list);
    EXPECT_EQ(Lines("D_tasks.dat"),
              (std::vector<std::string>{Line({"N200406050001", "20040605", "", "1000", "60", "", "", "", "", "", "", "",
                                              "", "", "Book the car service"}),
                                        Line({"N200406050002", "20040605", "", "0930", "60", "", "", "", "", "", "", "",
                                              "Done", "", "Renew the passport"})}));
    EXPECT_EQ(gCurrentTask.ID, "N200406050002");
    ASSERT_EQ(list.ListItems.Count(), 1);  // the finished one is not listed
    EXPECT_EQ(list.ListItems(1).Tag().substr(0, 13), "N200406050001");

    // After a cancelled dialog a task handed in is not added, and nothing is said.
    QueueEditor(
        "frmEditTask", [] {}, true);
    glbTasks.Add(list);
    const cTask dropped = Task("Dropped text");
    glbTasks.Add(list, &dropped);
    EXPECT_EQ(glbTasks.Count(), 2);
    EXPECT_TRUE(platform_.MessageTexts().empty());
}

TEST_F(TasksTest, ATaskAddedByHandWhileTheProgramRunsIsKept) {
    LoadTasks({Line({"N200406040001", "20040604", "", "0900", "30", "", "", "", "", "", "", "", "", "", "First"})});
    AppendToFile(gStrTasksFile, Line({"N200406040002", "20040604", "", "0900", "30", "", "", "", "", "", "", "", "", "",
                                      "Written by hand"}) +
                                    "\r\n");
    const cTask task = Task("Added in the program");
    glbTasks.Add(list, &task);
    EXPECT_EQ(Lines("D_tasks.dat").size(), 3U);
    EXPECT_EQ(gCurrentTask.ID, "N200406050001");
}

TEST_F(TasksTest, EditingStoresTheEditorsTaskInItsLineAndCancelKeepsIt) {
    LoadGoldenTasks();
    gCurrentTask = glbTasks.FindByID(kInProgress);
    QueueEditor("frmEditTask", [] { gCurrentTask.status = "Completed"; });
    glbTasks.Edit();
    EXPECT_EQ(Lines("D_tasks.dat")[2],
              Line({kInProgress, "20040604", "Work", "1030", "30", "View", "", "http://www.example.com/", "Job 7", "",
                    "", "2 - normal", "Completed", "Cost 15.50", "Read the supplier's price list (\xA3 12, caf\xE9)"}));
    EXPECT_EQ(glbTasks.CountActive(), 1);
    EXPECT_FALSE(glbConfig.dialogEditing);

    const std::string before = ReadBytes(gStrTasksFile);
    QueueEditor(
        "frmEditTask", [] {}, true);
    glbTasks.Edit();
    EXPECT_EQ(ReadBytes(gStrTasksFile), before);
    EXPECT_TRUE(glbConfig.dialogEditing);  // until the next Add

    // A task the list does not hold is added instead.
    glbConfig.dialogCancelled = false;
    gCurrentTask = Task("Not in the list");
    glbTasks.Edit();
    EXPECT_EQ(ReadBytes(gStrTasksFile), before);
    EXPECT_EQ(platform_.FormsShown().size(), 2U);
}

TEST_F(TasksTest, TwoTasksOfTheSameTextDateAndTimeAreEditedInTheEarlierLine) {
    const std::string twin = Closed("20040605||0900|30||||||||||Twin|");
    LoadTasks({Closed("N200406050001|") + twin, Closed("N200406050002|") + twin});
    glbTasks.SaveToFile();
    gCurrentTask = glbTasks.FindByID("N200406050002");
    QueueEditor("frmEditTask", [] { gCurrentTask.Priority = "1"; });
    glbTasks.Edit();
    // The earlier line took the edit, identifier and all.
    const std::string bytes = ReadBytes(gStrTasksFile);
    EXPECT_EQ(bytes.find("N200406050001"), std::string::npos);
    EXPECT_NE(bytes.find(Closed("N200406050002|") + twin), std::string::npos);
    EXPECT_NE(bytes.find(Closed("|1|||Twin|")), std::string::npos);
}

TEST_F(TasksTest, DeletingTheCurrentTaskTakesItsLineOut) {
    LoadGoldenTasks();
    gCurrentTask = glbTasks.FindByID(kDone);
    long index = 0;
    glbTasks.Delete(index);
    EXPECT_EQ(index, 1);
    EXPECT_EQ(Lines("D_tasks.dat").size(), 3U);
    EXPECT_EQ(ReadBytes(gStrTasksFile).find(kDone), std::string::npos);
    EXPECT_FALSE(platform_.BusyCursor());
}

TEST_F(TasksTest, TheFirstLineOfATableJustLoadedCantBeDeletedUntilASave) {
    LoadGoldenTasks();
    gCurrentTask = glbTasks.FindByID("unknown");  // the task of line 0
    EXPECT_EQ(gCurrentTask.ID, kUrgentOverdue);
    long index = 0;
    glbTasks.Delete(index);
    EXPECT_EQ(platform_.MessageTexts(), std::vector<std::string>{"cant delete - Invalid task selected"});
    EXPECT_TRUE(platform_.BusyCursor());  // left on, as it always was
    EXPECT_EQ(ReadBytes(gStrTasksFile), Golden("data/D_tasks.dat"));

    glbTasks.SaveToFile();
    index = 0;
    glbTasks.Delete(index);
    EXPECT_EQ(index, 1);
    EXPECT_EQ(ReadBytes(gStrTasksFile).find(kUrgentOverdue), std::string::npos);
}

TEST_F(TasksTest, ReIndexNumbersEveryTaskByItsDateAndLine) {
    LoadGoldenTasks();
    glbTasks.ReIndex();
    std::vector<std::string> ids;
    for (const std::string& line : Lines("D_tasks.dat")) ids.push_back(line.substr(0, 13));
    EXPECT_EQ(ids, (std::vector<std::string>{"D200406010001", "D200406010002", "D200406040003", "D200406050004"}));
    // The file now starts with "D": the day's next identifier follows the highest "D" one.
    const cTask task = Task("After the numbering");
    glbTasks.Add(list, &task);
    EXPECT_EQ(gCurrentTask.ID, "D200406050005");
}

TEST_F(TasksTest, ADroppedFileBecomesATaskToEditIt) {
    glbTasks.init(gStrTasksFile);
    glbTasks.CreateTaskAndAddFromFile("\\home\\fred\\report.doc");
    const cTask task = glbTasks.FindByID("N200406050001");
    EXPECT_EQ(task.details, "Edit report.doc in \\home\\fred\\");
    EXPECT_EQ(task.UrlID, "\\home\\fred\\report.doc");
    EXPECT_EQ(MainForm().lvCat.ListItems.Count(), 1);
}

TEST_F(TasksTest, TheHtmlListHoldsTheUnfinishedTasks) {
    LoadGoldenTasks();
    glbTasks.ExportToFile(Data("tasks-exported.htm"), "", true, true, false);
    EXPECT_EQ(ReadBytes(Data("tasks-exported.htm")), Golden("tasks-exported.htm"));
    glbTasks.ExportToFile(Data("tmpTasks.html"), "", false, false, true);
    EXPECT_EQ(ReadBytes(Data("tmpTasks.html")),
              "<TABLE width=100% border=0 valign=top align=left>\r\n"
              "<TR><TD width=100% valign=top><LI>Ring the bank about the loan</td></tr>\r\n"
              "<TR><TD width=100% valign=top><LI>Finish the quarterly report</td></tr>\r\n"
              "<TR><TD width=100% valign=top><LI>Read the supplier's price list (\xA3 12, caf\xE9)</td></tr>\r\n"
              "<TR><TD width=100% valign=top><LI>Buy a birthday present</td></tr>\r\n");
}

TEST_F(TasksTest, SearchResultsTellUrgentOverdueAndDoneTasks) {
    LoadGoldenTasks();
    glbTasks.Search(list, "e");
    ASSERT_EQ(list.ListItems.Count(), 4);
    std::vector<std::string> kinds;
    for (long i = 1; i <= 4; ++i) kinds.push_back(list.ListItems(i).SubItems(3));
    EXPECT_EQ(kinds, (std::vector<std::string>{"Task - Urgent - Overdue - Overdue - Overdue - Overdue - Overdue",
                                               "Task - Done", "Task", "Task - Done"}));
    ListItem& first = list.ListItems(1);
    EXPECT_EQ(first.Text(), "- Task -");
    EXPECT_EQ(first.Tag(), Lines("D_tasks.dat")[0]);
    EXPECT_TRUE(first.ListSubItems(4).Bold());
    EXPECT_EQ(first.ListSubItems(5).ForeColor(), vbRed);
    EXPECT_EQ(list.ListItems(2).ListSubItems(1).ForeColor(), vbGrayText);

    list.ListItems.Clear();
    glbTasks.Search(list, "ring the bank");  // the case counts
    EXPECT_EQ(list.ListItems.Count(), 0);
}

TEST_F(TasksTest, TheTaskListMarksEachTaskAndTellsHowManyAreShown) {
    LoadGoldenTasks();
    glbScreen.SwitchMode("TASK");
    gTaskHeadings.details = "Details";
    glbTasks.DisplayInListView(MainForm().lvCat, false);
    ListView& lvCat = MainForm().lvCat;
    ASSERT_EQ(lvCat.ListItems.Count(), 4);
    EXPECT_EQ(lvCat.ListItems(1).Text(), "20040603 ");  // the reminder's date
    EXPECT_EQ(lvCat.ListItems(2).Text(), "");
    // urgent and overdue: bold and red; done: grey; active without marks
    EXPECT_TRUE(lvCat.ListItems(1).ListSubItems(1).Bold());
    EXPECT_EQ(lvCat.ListItems(1).ListSubItems(1).ForeColor(), vbRed);
    EXPECT_EQ(lvCat.ListItems(2).ListSubItems(1).ForeColor(), vbGrayText);
    EXPECT_EQ(lvCat.ListItems(3).ListSubItems(1).ForeColor(), vbWindowText);
    EXPECT_EQ(MainForm().status.Panels(1).Text(), "4 of 4 Tasks shown");

    glbTasks.DisplayInListView(lvCat, true);
    EXPECT_EQ(lvCat.ListItems.Count(), 2);
    EXPECT_EQ(MainForm().status.Panels(1).Text(), "2 of 4 Tasks shown");

    // A row's task comes back by its ID; a row whose task is gone gives line 0's.
    EXPECT_EQ(glbTasks.GetFromList(&lvCat.ListItems(2))->ID, kInProgress);
    EXPECT_FALSE(glbTasks.GetFromList(nullptr).has_value());
    lvCat.ListItems(2).Tag = "N209912310001";
    EXPECT_EQ(glbTasks.GetFromList(&lvCat.ListItems(2))->ID, kUrgentOverdue);
}
