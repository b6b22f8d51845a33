// Notes: the line of one note and its body file, and the note list over its file: a
// hand-written data folder saved back, adding, editing, deleting, rebuilding from
// the notes folder, notes made from files, search and the list.
#include <algorithm>
#include <tuple>

#include "PimFixture.h"
#include "controls/ListView.h"
#include "pim/cNotes.h"
#include "screen/frmClientDiaryMain.h"

using namespace orbidex;

class NotesTest : public test::PimFixture {
protected:
    void SetUp() override {
        PimFixture::SetUp();
        CopyGoldenData();
        glbNotes.init(notesFile);
    }
    std::string Body(const std::string& name) const { return ReadBytes(Data("notes\\" + name)); }
    /// The line of the note list with its fields "|"-separated.
    std::string ListLine(size_t index) const { return Replace(Lines("allnotes.dat")[index], "\x1F", "|"); }

    const std::string notesFile = Data("allnotes.dat");
    ListView list;
};

TEST_F(NotesTest, ALineIsReadIntoItsEightFieldsWithOrWithoutAnExtraDelimiterInFront) {
    const std::string line = Lines("allnotes.dat")[0];
    for (const std::string& text : {line, "\x1F" + line}) {
        cNote note;
        EXPECT_TRUE(note.CreateNoteFromTextLine(text, "\x1F"));
        EXPECT_EQ(note.ID + "|" + note.Filename + "|" + note.title, "N200406010001|Shopping list.txt|Shopping list");
        EXPECT_EQ(note.FormatRecordAsCSV("\x1F", "\r\n"), line);
    }
    cNote note;
    note.title = "old";
    EXPECT_TRUE(note.CreateNoteFromTextLine("", "\x1F"));  // changes nothing
    EXPECT_FALSE(note.CreateNoteFromTextLine(line.substr(0, line.size() - 1), "\x1F"));
    EXPECT_EQ(note.Filename + "|" + note.title, "Shopping list.txt|old");
    EXPECT_EQ(
        platform_.MessageTexts(),
        std::vector<std::string>{"Error in cNote.CreateNoteFromTextLine Error=5 = Invalid procedure call or argument"});
}

TEST_F(NotesTest, AHandWrittenDataFolderLoadsUnchangedAndSavesBackByteForByte) {
    ASSERT_EQ(glbNotes.Count(), 3);
    cNote meeting = glbNotes.FindByID("N200406020001");
    EXPECT_EQ(meeting.details, "");  // the text stays in its file until asked for
    EXPECT_EQ(meeting.LoadDetails(), Golden("data/notes/Meeting notes.txt"));
    glbNotes.SaveToFile();
    EXPECT_EQ(ReadBytes(notesFile), Golden("data/allnotes.dat"));
    // Each load and save of a text adds a line end, as it always has.
    meeting.SaveDetails(meeting.LoadDetails());
    EXPECT_EQ(Body("Meeting notes.txt"), Golden("data/notes/Meeting notes.txt") + "\r\n");
    EXPECT_TRUE(platform_.Transcript().empty());
}

TEST_F(NotesTest, TitlesKeepTheFirstLineAndOnlyPlainCharacters) {
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"a\r\nsecond line", "a  second line"},  // a first line of one letter doesn't count
        {"ab\r\ncd", "ab "},
        {"What? [x] @home!\r\nmore", "What [x @home "},
        {"caf\xE9 \xA3 5", "caf  5"},
    };
    for (const auto& [text, title] : cases) EXPECT_EQ(cNotes::GetNoteTitleFromDetails(text), title) << text;
}

TEST_F(NotesTest, ABodyFileIsNamedByTheTitleOrTheMomentAndNeverTakesAnotherNotesName) {
    // title, Filename before, Filename after
    const std::vector<std::tuple<std::string, std::string, std::string>> cases = {
        {"Two\r\nlines", "", "Two  lines.txt"},
        {"", "", "20040605-093012.txt"},
        {std::string(100, 'x'), "", std::string(80, 'x') + ".txt"},
        {"Shopping list", "", "Shopping list (2).txt"},  // that body is another note's
        {"Shopping list", "own.txt", "own.txt"},
    };
    for (const auto& [title, before, after] : cases) {
        cNote note;
        note.title = title;
        note.Filename = before;
        note.CreateNewFileName();
        EXPECT_EQ(note.Filename, after) << title;
    }
}

TEST_F(NotesTest, ABodyFileThatIsMissingOrAFolderReadsEmptyAndIsReported) {
    MakeFolder(Data("notes\\A folder.txt"));
    // Filename, message
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"Gone.txt", "Error in cNote.LoadDetails Error=53 = File not found"},
        {"A folder.txt", "Error in cNote.LoadDetails Error=75 = Path/File access error"},
        {"", ""},  // a new note: no body yet, nothing said
    };
    for (const auto& [name, message] : cases) {
        platform_.ClearTranscript();
        cNote note;
        note.Filename = name;
        EXPECT_EQ(note.LoadDetails(), "") << name;
        EXPECT_EQ(platform_.MessageTexts(),
                  message.empty() ? std::vector<std::string>{} : std::vector<std::string>{message});
    }
    cNote note;
    note.Filename = "A folder.txt";
    EXPECT_FALSE(note.SaveDetails("text"));
    EXPECT_EQ(platform_.MessageTexts().back(), "Error in cNote.SaveDetails Error=75 = Path/File access error");
}

TEST_F(NotesTest, AddingSavesTheTextFillsTheBlankFieldsAndListsTheNotes) {
    cNote note;
    note.title = "Holiday plans";
    note.details = "Holiday plans\r\nBook the ferry";
    note.Color = "Blue";
    glbNotes.Add(list, &note);
    EXPECT_EQ(Body("Holiday plans.txt"), "Holiday plans\r\nBook the ferry\r\n");
    EXPECT_EQ(ListLine(3), "N200406050001|20040605|20040605||Blue||Holiday plans.txt|Holiday plans|");
    EXPECT_EQ(list.ListItems.Count(), 4);
    EXPECT_EQ(MainForm().status.Panels(1).Text(), "4 Notes");

    QueueEditor("frmEditNote", [] { gCurrentNote.Add("Phone numbers"); });  // the editor opens on a new note
    glbNotes.Add(list);
    EXPECT_EQ(ListLine(4), "N200406050002|20040605|20040605||||Phone numbers.txt|Phone numbers|");
    QueueEditor(
        "frmEditNote", [] {}, true);
    glbNotes.Add(list);
    EXPECT_EQ(glbNotes.Count(), 5);
}

TEST_F(NotesTest, EditingCountsAndStoresTheLine) {
    gCurrentNote = glbNotes.FindByID("N200406020001");
    QueueEditor("frmEditNote", [] { gCurrentNote.Color = "Red"; });
    glbNotes.Edit();
    EXPECT_EQ(ListLine(1), "N200406020001|20040602|20040602|Ref 4|Red|Work|Meeting notes.txt|Meeting notes|");
    EXPECT_EQ(gCurrentNote.NumTimesModified + " " + gCurrentNote.NumTimesAccessed, "1 1");

    const std::string before = ReadBytes(notesFile);
    QueueEditor(
        "frmEditNote", [] { gCurrentNote.Color = "Green"; }, true);
    glbNotes.Edit();
    EXPECT_EQ(ReadBytes(notesFile), before);

    // A note the list does not hold, or none at all (the list's blank entry is no
    // note): said, then the editor opens on a new note, and the file stays.
    cNote notInTheList = gCurrentNote;
    notInTheList.title = "Not in the list";
    size_t forms = platform_.FormsShown().size();
    for (const cNote& note : {notInTheList, cNote()}) {
        platform_.ClearTranscript();
        gCurrentNote = note;
        QueueEditor(
            "frmEditNote", [] { gCurrentNote.Add("typed"); }, true);
        glbNotes.Edit();
        EXPECT_EQ(platform_.MessageTexts(), std::vector<std::string>{"No note selected"}) << note.title;
        EXPECT_EQ(platform_.FormsShown().size(), ++forms);
        EXPECT_EQ(ReadBytes(notesFile), before);
    }
}

TEST_F(NotesTest, ADeletedNoteKeepsItsBodyAndARebuildBringsItBack) {
    gCurrentNote = glbNotes.FindByID("N200406020001");
    long index = 0;
    glbNotes.Delete(index);
    EXPECT_EQ(ReadBytes(notesFile).find("Meeting notes"), std::string::npos);
    EXPECT_EQ(Body("Meeting notes.txt"), Golden("data/notes/Meeting notes.txt"));
    index = 0;
    glbNotes.Delete(index);  // the same note again: no longer in the list
    EXPECT_EQ(platform_.MessageTexts(), std::vector<std::string>{"cant delete - Invalid note selected"});
    EXPECT_FALSE(platform_.BusyCursor());

    platform_.QueueMsgBoxAnswer(vbNo);
    glbNotes.RecreateNotesListFromNotesFolder(true);
    EXPECT_EQ(glbNotes.Count(), 2);
    glbConfig.dialogCancelled = true;  // as a dialog closed with its close box leaves it
    platform_.QueueMsgBoxAnswer(vbYes);
    glbNotes.RecreateNotesListFromNotesFolder(true);
    EXPECT_EQ(platform_.MessageTexts().back(), "Finished Adding 3 notes from the files in " + DataPath() + "notes\\");
    // New identifiers of today, titles from the names, colours and categories gone.
    std::vector<std::string> notes;
    for (const std::string& line : Lines("allnotes.dat")) {
        cNote note;
        note.CreateNoteFromTextLine(line, "\x1F");
        notes.push_back(note.ID.substr(0, 9) + " " + note.title + "|" + note.Color + note.Category);
    }
    std::sort(notes.begin(), notes.end());
    EXPECT_EQ(notes, (std::vector<std::string>{"N20040605 20040602-101500.txt|", "N20040605 Meeting notes.txt|",
                                               "N20040605 Shopping list.txt|"}));
    EXPECT_EQ(Body("Meeting notes.txt"), "\r\n" + Golden("data/notes/Meeting notes.txt") + "\r\n");
}

TEST_F(NotesTest, ANoteFromAFileElsewhereIsItsExactCopyUnderAFreeName) {
    MakeFolder(Stored("inbox"));
    WriteBytes(Stored("inbox\\Shopping list.txt"), "Soap\r\nTea");
    glbNotes.CreateNoteAndADDFromFile(Stored("inbox\\Shopping list.txt"), false);
    EXPECT_EQ(gCurrentNote.title + "|" + gCurrentNote.Filename, "  Soap  Tea|Shopping list (2).txt");
    EXPECT_EQ(Body("Shopping list (2).txt"), "Soap\r\nTea");
    EXPECT_EQ(Body("Shopping list.txt"), Golden("data/notes/Shopping list.txt"));  // the other note's

    // A file that can't be read still gives a note, after saying so.
    glbNotes.CreateNoteAndADDFromFile(Stored("inbox\\gone.txt"), true);
    EXPECT_EQ(platform_.MessageTexts(),
              std::vector<std::string>{"Error in cNotes.CreateNoteAndADDFromFile Error=53 = File not found"});
    EXPECT_EQ(glbNotes.Count(), 5);
}

TEST_F(NotesTest, SearchLooksAtTheListsLinesWithoutRegardToCaseUnlessAsked) {
    glbNotes.Search(list, "budget");  // a word of a note's text only
    EXPECT_EQ(list.ListItems.Count(), 0);
    glbNotes.Search(list, "MEETING", true);
    EXPECT_EQ(list.ListItems.Count(), 0);
    glbNotes.Search(list, "MEETING");
    ASSERT_EQ(list.ListItems.Count(), 1);
    ListItem& row = list.ListItems(1);
    EXPECT_EQ(row.Tag(), Lines("allnotes.dat")[1]);
    EXPECT_EQ(row.SubItems(3) + "|" + row.SubItems(4) + "|" + row.SubItems(5), "Note|Meeting notes|note");
    EXPECT_EQ(row.ListSubItems(4).ForeColor(), OleColor{0xC00000});  // blue
}

TEST_F(NotesTest, TheNoteListShowsTheTitlesInTheirColours) {
    glbNotes.DisplayInListView(list);
    ASSERT_EQ(list.ColumnHeaders.Count(), 2);
    EXPECT_EQ(list.ColumnHeaders(2).Text(), "Title");
    EXPECT_EQ(list.ColumnHeaders(2).Width(), 3540);
    ASSERT_EQ(list.ListItems.Count(), 3);
    EXPECT_EQ(list.ListItems(1).SubItems(1), "Shopping list");
    EXPECT_EQ(list.ListItems(1).ForeColor(), OleColor{0x008080});  // yellow
    EXPECT_EQ(glbNotes.GetFromList(&list.ListItems(2))->Filename, "Meeting notes.txt");
    EXPECT_EQ(MainForm().status.Panels(1).Text(), "3 Notes");

    // The HTML page leaves out line 0 of a table just loaded, and the texts.
    glbNotes.ExportToFile(Data("note.htm"));
    const std::string page = ReadBytes(Data("note.htm"));
    EXPECT_EQ(page.find("20040601"), std::string::npos);
    EXPECT_NE(page.find("<TR><TD width=15%>20040602\r\n</td><TD width=85%>\r\n</td></tr>\r\n"), std::string::npos);
}
