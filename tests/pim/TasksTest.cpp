// Tasks: the line of one task, and the task list over its file: a hand-written file
// saved back, adding, editing, completing, deleting, numbering, search, the list and
// the HTML page.
#include <filesystem>
#include <functional>
#include <tuple>

#include "PimFixture.h"
#include "controls/ListView.h"
#include "pim/cNotes.h"
#include "pim/cTasks.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"

using namespace orbidex;

namespace {

// Lines of tests/pim/golden/data/D_tasks.dat.
const std::string kUrgentOverdue = "D200406010000";  // line 0: priority 1, reminder of 3 June
const std::string kDone = "D200406010001";           // line 1: status "Done"
const std::string kInProgress = "N200406040001";     // line 2: length "-5", foreign bytes

}  // namespace

class TasksTest : public test::PimFixture {
protected:
    void LoadGoldenTasks() {
        CopyGoldenData();
        glbTasks.init(gStrTasksFile);
    }
    static cTask Task(const std::string& details) {
        cTask task;
        task.SetDefault();
        task.details = details;
        task.timeCreated = "1000";
        return task;
    }
    ListView list;
};

TEST_F(TasksTest, ALineIsReadIntoItsFieldsAndWrittenBackByteForByte) {
    const std::string line = SplitLines(Golden("data/D_tasks.dat"))[2];
    cTask task;
    task.title = "kept";
    ASSERT_TRUE(task.CreateTaskFromTextLine(line, "\x1F"));
    EXPECT_EQ(task.ID + "|" + task.Reference + "|" + task.length + "|" + task.status + "|" + task.details,
              kInProgress + "|Work|30|In progress|Read the supplier's price list (\xA3 12, caf\xE9)");
    EXPECT_EQ(task.title, "kept");  // not in the line
    EXPECT_EQ(task.FormatRecordAsCSV("\x1F", "\r\n"), Replace(line, Closed("|-5|"), Closed("|30|")));

    // Without ID, reference, time and text a task has no line.
    cTask blank = Task("");
    blank.timeCreated = " ";
    blank.Priority = "1";
    EXPECT_EQ(blank.FormatRecordAsCSV("\x1F", "\r\n"), "");
    blank.details = "Call Bob";
    EXPECT_EQ(blank.FormatRecordAsCSV("\x1F", ""), Closed("|20040605|| |60|||||||1|||Call Bob|"));
}

TEST_F(TasksTest, LengthsBelowZeroReadAsThirtyAndFinishedStatusesEndATask) {
    for (const auto& [length, read] : std::vector<std::pair<std::string, std::string>>{
             {"-5", "30"}, {"0", "0"}, {"", ""}, {"-0", "-0"}, {"x", "x"}}) {
        cTask task;
        task.CreateTaskFromTextLine(Closed("N1|20040605||0900|" + length + "||||||||||text|"), "\x1F");
        EXPECT_EQ(task.length, read) << length;
    }
    cTask task;
    for (const char* finished : {"completed ", "  DONE", "Over", "finished"}) {
        task.status = finished;
        EXPECT_FALSE(task.isTaskActive()) << finished;
    }
    for (const char* active : {"Complete", "finished.", "", "In progress"}) {
        task.status = active;
        EXPECT_TRUE(task.isTaskActive()) << active;
    }
}

TEST_F(TasksTest, ABrokenLineIsReportedAndKeepsTheFieldsReadBeforeTheBreak) {
    // line, ID read, details (both "old" before)
    const std::vector<std::tuple<std::string, std::string, std::string>> cases = {
        {Closed("N200406050001|20040605||0900|30||||||||||cut short"), "N200406050001", "old"},
        {"\x1F", "", "old"},
        {"no delimiter at all", "old", "old"},
        {"\xFF\xFE\x1F\x80", "\xFF\xFE", "old"},
    };
    for (const auto& [line, id, details] : cases) {
        platform_.ClearTranscript();
        cTask task;
        task.ID = task.details = "old";
        EXPECT_FALSE(task.CreateTaskFromTextLine(line, "\x1F"));
        EXPECT_EQ(task.ID + "|" + task.details, id + "|" + details);
        EXPECT_EQ(platform_.MessageTexts(),
                  std::vector<std::string>{
                      "Error in cTask.CreateTaskFromTextLine Error=5 = Invalid procedure call or argument"});
    }
    std::string hundred;  // a line of 100 fields reads its first fifteen
    for (int i = 1; i <= 100; ++i) hundred += std::to_string(i) + "\x1F";
    cTask task;
    EXPECT_TRUE(task.CreateTaskFromTextLine(hundred, "\x1F"));
    EXPECT_EQ(task.ID + "|" + task.details, "1|15");
    EXPECT_TRUE(task.CreateTaskFromTextLine("", "\x1F"));  // an empty line: the defaults
    EXPECT_EQ(task.DateCreated + " " + task.timeCreated + " " + task.length + " " + task.ID, "20040605 0930 60 ");
}

TEST_F(TasksTest, AHandWrittenFileLoadsUnchangedAndSavesBackByteForByte) {
    LoadGoldenTasks();
    EXPECT_EQ(glbTasks.Count(), 4);
    EXPECT_EQ(glbTasks.CountActive(), 2);
    EXPECT_EQ(glbTasks.Table().Item(3), Lines("D_tasks.dat")[3]);
    glbTasks.SaveToFile();
    EXPECT_EQ(ReadBytes(gStrTasksFile), Golden("data/D_tasks.dat"));
    EXPECT_TRUE(platform_.Transcript().empty());
}

TEST_F(TasksTest, AddingGivesTheNextIdentifierAndListsTheActiveTasks) {
    glbTasks.init(gStrTasksFile);  // no file yet
    const cTask first = Task("Book the car service");
    glbTasks.Add(list, &first);
    QueueEditor("frmEditTask", [] {
        EXPECT_EQ(gCurrentTask.DateCreated + " " + gCurrentTask.timeCreated, "20040605 0930");
        gCurrentTask.details = "Renew the passport";
        gCurrentTask.status = "Done";
    });
    glbTasks.Add(list);  // the editor opens on a new task
    EXPECT_EQ(ReadBytes(gStrTasksFile), Closed("N200406050001|20040605||1000|60||||||||||Book the car service|\r\n"
                                               "N200406050002|20040605||0930|60||||||||Done||Renew the passport|\r\n"));
    ASSERT_EQ(list.ListItems.Count(), 1);  // the finished one is not listed
    EXPECT_EQ(list.ListItems(1).Tag().substr(0, 13), "N200406050001");

    // After a cancelled dialog a task handed in is not added, and nothing is said.
    QueueEditor(
        "frmEditTask", [] {}, true);
    glbTasks.Add(list);
    glbTasks.Add(list, &first);
    EXPECT_EQ(glbTasks.Count(), 2);
    EXPECT_TRUE(platform_.MessageTexts().empty());
}

TEST_F(TasksTest, CompletingATaskInTheEditorStoresItsLineAndCancelKeepsIt) {
    LoadGoldenTasks();
    gCurrentTask = glbTasks.FindByID(kInProgress);
    QueueEditor("frmEditTask", [] { gCurrentTask.status = "Completed"; });
    glbTasks.Edit();
    EXPECT_EQ(Lines("D_tasks.dat")[2],
              Closed(kInProgress + "|20040604|Work|1030|30|View||http://www.example.com/|Job 7|||"
                                   "2 - normal|Completed|Cost 15.50|Read the supplier's price "
                                   "list (\xA3 12, caf\xE9)|"));
    EXPECT_EQ(glbTasks.CountActive(), 1);

    const std::string before = ReadBytes(gStrTasksFile);
    QueueEditor(
        "frmEditTask", [] { gCurrentTask.status = ""; }, true);
    glbTasks.Edit();
    EXPECT_EQ(ReadBytes(gStrTasksFile), before);
    EXPECT_TRUE(glbConfig.dialogEditing);  // until the next Add

    // A task the list does not hold is added: the editor opens on a new task.
    gCurrentTask = Task("Not in the list");
    QueueEditor("frmEditTask", [] { EXPECT_FALSE(glbConfig.dialogEditing); });
    glbTasks.Edit();
    EXPECT_EQ(platform_.FormsShown().size(), 3U);
    EXPECT_EQ(Lines("D_tasks.dat").size(), 5U);
}

TEST_F(TasksTest, DeletingTakesTheLineOutButNotTheFirstOfATableJustLoaded) {
    LoadGoldenTasks();
    gCurrentTask = glbTasks.FindByID("unknown");  // the task of line 0
    EXPECT_EQ(gCurrentTask.ID, kUrgentOverdue);
    long index = 0;
    glbTasks.Delete(index);
    EXPECT_EQ(platform_.MessageTexts(), std::vector<std::string>{"cant delete - Invalid task selected"});
    EXPECT_TRUE(platform_.BusyCursor());  // left on, as it always was
    EXPECT_EQ(ReadBytes(gStrTasksFile), Golden("data/D_tasks.dat"));

    for (const std::string& id : {kDone, kUrgentOverdue}) {  // the second after the first's save
        gCurrentTask = glbTasks.FindByID(id);
        index = 0;
        glbTasks.Delete(index);
        EXPECT_EQ(index, 1);
        EXPECT_EQ(ReadBytes(gStrTasksFile).find(id), std::string::npos);
    }
    EXPECT_EQ(Lines("D_tasks.dat").size(), 2U);
    EXPECT_FALSE(platform_.BusyCursor());
}

TEST_F(TasksTest, ReIndexNumbersEveryTaskByItsDateAndLine) {
    LoadGoldenTasks();
    glbTasks.ReIndex();
    std::vector<std::string> ids;
    for (const std::string& line : Lines("D_tasks.dat")) ids.push_back(line.substr(0, 13));
    EXPECT_EQ(ids, (std::vector<std::string>{"D200406010001", "D200406010002", "D200406040003", "D200406050004"}));
    const cTask task = Task("After the numbering");
    glbTasks.Add(list, &task);
    EXPECT_EQ(gCurrentTask.ID, "D200406050005");
}

TEST_F(TasksTest, AChangeStopsWhenTheChangedFileCantBeReadAndTheFileIsKept) {
    LoadGoldenTasks();
    const std::string notesFile = Data("allnotes.dat");
    glbNotes.init(notesFile);
    const cTask task = Task("Not added");
    cNote note;
    note.title = "Not added";
    const struct {
        const char* what;
        std::string file;
        std::function<void()> change;
    } cases[] = {
        {"a task added", gStrTasksFile, [&] { glbTasks.Add(list, &task); }},
        {"tasks imported", gStrTasksFile,
         [&] {
             std::vector<std::string> notAdded;
             EXPECT_EQ(glbTasks.AddTasks({task}, notAdded), 0);
         }},
        {"a task edited", gStrTasksFile, [] { glbTasks.Edit(); }},
        {"a task deleted", gStrTasksFile,
         [] {
             long index = 0;
             glbTasks.Delete(index);
         }},
        {"the tasks numbered", gStrTasksFile, [] { glbTasks.ReIndex(); }},
        {"a note added", notesFile, [&] { glbNotes.Add(list, &note); }},
        {"a note edited", notesFile, [] { glbNotes.Edit(); }},
        {"a note deleted", notesFile,
         [] {
             long index = 0;
             glbNotes.Delete(index);
         }},
    };
    for (const auto& c : cases) {
        gCurrentTask = glbTasks.FindByID(kDone);
        gCurrentNote = glbNotes.FindByID("N200406020001");
        // Another program has the file changed, and reading it now fails.
        const std::string before = ReadBytes(c.file);
        const std::filesystem::path native = ToNativePath(c.file);
        std::filesystem::remove(native);
        std::filesystem::create_symlink("/proc/self/mem", native);
        platform_.ClearTranscript();
        c.change();
        EXPECT_EQ(platform_.MessageTexts(),
                  std::vector<std::string>{"Error in cData.LoadFromFile Error=75 = Path/File access error"})
            << c.what;
        EXPECT_TRUE(platform_.FormsShown().empty()) << c.what;
        EXPECT_FALSE(platform_.BusyCursor()) << c.what;
        EXPECT_EQ(glbTasks.Count() * 10 + glbNotes.Count(), 43) << c.what << ": the tables as they were";
        std::filesystem::remove(native);
        WriteBytes(c.file, before);
    }
    // Once the file reads again, the next change keeps what was added to it meanwhile.
    const std::string byHand = Closed("N200406050009|20040605||1200|30||||||||||Added by hand|");
    WriteBytes(gStrTasksFile, Golden("data/D_tasks.dat") + byHand + "\r\n");
    const cTask added = Task("Added now");
    glbTasks.Add(list, &added);
    EXPECT_EQ(ReadBytes(gStrTasksFile), Golden("data/D_tasks.dat") + byHand + "\r\n" +
                                            Closed("N200406050010|20040605||1000|60||||||||||Added now|\r\n"));
}

TEST_F(TasksTest, TheHtmlListHoldsTheUnfinishedTasks) {
    LoadGoldenTasks();
    glbTasks.ExportToFile(Data("tasks-exported.htm"), "", true, true, false);
    EXPECT_EQ(ReadBytes(Data("tasks-exported.htm")), Golden("tasks-exported.htm"));
    glbTasks.ExportToFile(Data("tmpTasks.html"), "", false, false, true);
    EXPECT_EQ(SplitLines(ReadBytes(Data("tmpTasks.html")))[4],
              "<TR><TD width=100% valign=top><LI>Buy a birthday present</td></tr>");
}

TEST_F(TasksTest, SearchResultsTellUrgentOverdueAndDoneTasks) {
    LoadGoldenTasks();
    glbTasks.Search(list, "ring the bank");  // the case counts
    EXPECT_EQ(list.ListItems.Count(), 0);
    glbTasks.Search(list, "e");
    ASSERT_EQ(list.ListItems.Count(), 4);
    std::vector<std::string> kinds;
    for (long i = 1; i <= 4; ++i) kinds.push_back(list.ListItems(i).SubItems(3));
    EXPECT_EQ(kinds, (std::vector<std::string>{"Task - Urgent - Overdue - Overdue - Overdue - Overdue - Overdue",
                                               "Task - Done", "Task", "Task - Done"}));
    EXPECT_EQ(list.ListItems(1).Tag(), Lines("D_tasks.dat")[0]);
    EXPECT_EQ(list.ListItems(1).ListSubItems(5).ForeColor(), vbRed);
}

TEST_F(TasksTest, TheTaskListMarksEachTaskAndTellsHowManyAreShown) {
    LoadGoldenTasks();
    glbScreen.SwitchMode("TASK");
    ListView& lvCat = MainForm().lvCat;
    glbTasks.DisplayInListView(lvCat, false);
    ASSERT_EQ(lvCat.ListItems.Count(), 4);
    EXPECT_EQ(lvCat.ListItems(1).Text(), "20040603 ");  // the reminder's date
    EXPECT_TRUE(lvCat.ListItems(1).ListSubItems(1).Bold());
    EXPECT_EQ(lvCat.ListItems(1).ListSubItems(1).ForeColor(), vbRed);
    EXPECT_EQ(lvCat.ListItems(2).ListSubItems(1).ForeColor(), vbGrayText);
    EXPECT_EQ(lvCat.ListItems(3).ListSubItems(1).ForeColor(), vbWindowText);
    EXPECT_EQ(MainForm().status.Panels(1).Text(), "4 of 4 Tasks shown");
    glbTasks.DisplayInListView(lvCat, true);
    EXPECT_EQ(MainForm().status.Panels(1).Text(), "2 of 4 Tasks shown");

    // A row's task comes back by its ID; a row whose task is gone gives line 0's.
    EXPECT_EQ(glbTasks.GetFromList(&lvCat.ListItems(2))->ID, kInProgress);
    EXPECT_FALSE(glbTasks.GetFromList(nullptr).has_value());
    lvCat.ListItems(2).Tag = "N209912310001";
    EXPECT_EQ(glbTasks.GetFromList(&lvCat.ListItems(2))->ID, kUrgentOverdue);
}
