// Notes: the line of one note and its body file, and the note list over its file:
// loading and saving a hand-written data folder, adding, editing, deleting,
// rebuilding from the notes folder, notes made from files, search and the list.
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
        notesFile = Data("allnotes.dat");
    }
    void LoadGoldenNotes() {
        CopyGoldenData();
        glbNotes.init(notesFile);
    }
    std::string Body(const std::string& name) const { return ReadBytes(Data("notes\\" + name)); }

    std::string notesFile;
    ListView list;
};

TEST_F(NotesTest, ALineReadsIntoItsEightFieldsAndIsWrittenBackByteForByte) {
    const std::string line =
        Line({"N200406010001", "20040601", "20040603", "Ref", "Yellow", "Home", "Shopping list.txt", "Shopping list"});
    // line read, ID, title (both "old" before)
    const std::vector<std::tuple<std::string, std::string, std::string>> cases = {
        {line, "N200406010001", "Shopping list"},
        {"\x1F" + line, "N200406010001", "Shopping list"},  // one extra delimiter in front
        {"", "old", "old"},                                 // an empty line changes nothing
    };
    for (const auto& [text, id, title] : cases) {
        cNote note;
        note.ID = note.title = "old";
        EXPECT_TRUE(note.CreateNoteFromTextLine(text, "\x1F"));
        EXPECT_EQ(note.ID + "|" + note.title, id + "|" + title);
    }
    cNote note;
    note.CreateNoteFromTextLine(line, "\x1F");
    EXPECT_EQ(note.FormatRecordAsCSV("\x1F", "\r\n"), line);
    EXPECT_TRUE(platform_.Transcript().empty());

    // A line without its last delimiter is reported; the fields before it stay.
    note.title = "old";
    EXPECT_FALSE(note.CreateNoteFromTextLine(line.substr(0, line.size() - 1), "\x1F"));
    EXPECT_EQ(note.title, "old");
    EXPECT_EQ(note.Filename, "Shopping list.txt");
    EXPECT_EQ(
        platform_.MessageTexts(),
        std::vector<std::string>{"Error in cNote.CreateNoteFromTextLine Error=5 = Invalid procedure call or argument"});
}

TEST_F(NotesTest, AHandWrittenDataFolderLoadsUnchangedAndSavesBackByteForByte) {
    LoadGoldenNotes();
    ASSERT_EQ(glbNotes.Count(), 3);
    const cNote meeting = glbNotes.FindByID("N200406020001");
    EXPECT_EQ(meeting.title, "Meeting notes");
    EXPECT_EQ(meeting.details, "");  // the text stays in its file until asked for
    cNote copy = meeting;
    EXPECT_EQ(copy.LoadDetails(), Golden("data/notes/Meeting notes.txt"));
    glbNotes.SaveToFile();
    EXPECT_EQ(ReadBytes(notesFile), Golden("data/allnotes.dat"));
    // Each load and save of a text adds a line end, as it always has.
    copy.SaveDetails(copy.LoadDetails());
    EXPECT_EQ(Body("Meeting notes.txt"), Golden("data/notes/Meeting notes.txt") + "\r\n");
    EXPECT_TRUE(platform_.Transcript().empty());
}

TEST_F(NotesTest, TitlesKeepTheFirstLineAndOnlyPlainCharacters) {
    // text, title
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"a\r\nsecond line", "a  second line"},  // a first line of one letter doesn't count
        {"ab\r\ncd", "ab "},
        {"What? [x] @home!\r\nmore", "What [x @home "},
        {"\r\nBody", "  Body"},
        {"caf\xE9 \xA3 5", "caf  5"},
        {"", ""},
    };
    for (const auto& [text, title] : cases) EXPECT_EQ(cNotes::GetNoteTitleFromDetails(text), title) << text;
}

TEST_F(NotesTest, ABodyFileIsNamedByTheTitleOrTheMomentAndNeverTakesAnotherNotesName) {
    CopyGoldenData();
    // title, Filename before, Filename after
    const std::vector<std::tuple<std::string, std::string, std::string>> cases = {
        {"Holiday plans", "", "Holiday plans.txt"},     {"", "", "20040605-093012.txt"},
        {"Two\r\nlines", "", "Two  lines.txt"},         {std::string(100, 'x'), "", std::string(80, 'x') + ".txt"},
        {"Shopping list", "", "Shopping list (2).txt"},  // that body belongs to another note
        {"Shopping list", "own.txt", "own.txt"},
    };
    for (const auto& [title, before, after] : cases) {
        cNote note;
        note.title = title;
        note.Filename = before;
        note.CreateNewFileName();
        EXPECT_EQ(note.Filename, after) << title;
    }
    WriteBytes(Data("notes\\Shopping list (2).txt"), "taken too");
    EXPECT_EQ(cNote::FreeBodyName("Shopping list.txt"), "Shopping list (3).txt");
    EXPECT_EQ(cNote::FreeBodyName("README"), "README");
}

TEST_F(NotesTest, ABodyFileThatIsMissingOrAFolderReadsEmptyAndIsReported) {
    CopyGoldenData();
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
    platform_.ClearTranscript();
    cNote note;
    note.Filename = "A folder.txt";
    EXPECT_FALSE(note.SaveDetails("text"));
    EXPECT_EQ(platform_.MessageTexts(),
              std::vector<std::string>{"Error in cNote.SaveDetails Error=75 = Path/File access error"});
}

TEST_F(NotesTest, AddingSavesTheTextFillsTheBlankFieldsAndListsTheNotes) {
    glbNotes.init(notesFile);  // no list and no notes folder yet
    cNote note;
    note.title = "Holiday plans";
    note.details = "Holiday plans\r\nBook the ferry";
    note.Color = "Blue";
    glbNotes.Add(list, &note);
    EXPECT_EQ(Body("Holiday plans.txt"), "Holiday plans\r\nBook the ferry\r\n");
    EXPECT_EQ(
        ReadBytes(notesFile),
        Line({"N200406050001", "20040605", "20040605", "", "Blue", "", "Holiday plans.txt", "Holiday plans"}) + "\r\n");
    EXPECT_EQ(gCurrentNote.DateAccessed, "20040605");
    ASSERT_EQ(list.ListItems.Count(), 1);
    EXPECT_EQ(list.ListItems(1).SubItems(1), "Holiday plans");
    EXPECT_EQ(list.ListItems(1).ListSubItems(1).ForeColor(), OleColor{0xC00000});
    EXPECT_EQ(MainForm().status.Panels(1).Text(), "1 Notes");

    // Without a note the editor opens; it writes the text itself.
    QueueEditor("frmEditNote", [] {
        gCurrentNote.title = "Phone numbers";
        gCurrentNote.SaveDetails("Phone numbers");
    });
    glbNotes.Add(list);
    EXPECT_EQ(gCurrentNote.ID, "N200406050002");
    EXPECT_EQ(Body("Phone numbers.txt"), "Phone numbers\r\n");

    QueueEditor(
        "frmEditNote", [] {}, true);
    glbNotes.Add(list);
    EXPECT_EQ(glbNotes.Count(), 2);
}

TEST_F(NotesTest, EditingCountsAndStoresTheLine) {
    LoadGoldenNotes();
    gCurrentNote = glbNotes.FindByID("N200406020001");
    QueueEditor("frmEditNote", [] {
        gCurrentNote.Color = "Red";
        gCurrentNote.DateModified = "20040605";
    });
    glbNotes.Edit();
    EXPECT_EQ(Lines("allnotes.dat")[1], Line({"N200406020001", "20040602", "20040605", "Ref 4", "Red", "Work",
                                              "Meeting notes.txt", "Meeting notes"}));
    EXPECT_EQ(gCurrentNote.NumTimesModified + " " + gCurrentNote.NumTimesAccessed, "1 1");

    const std::string before = ReadBytes(notesFile);
    QueueEditor(
        "frmEditNote", [] { gCurrentNote.Color = "Green"; }, true);
    glbNotes.Edit();
    EXPECT_EQ(ReadBytes(notesFile), before);

    // A note the list does not hold: said, and handed to the add command.
    glbConfig.dialogCancelled = false;
    gCurrentNote = cNote();
    gCurrentNote.title = "Not in the list";
    glbNotes.Edit();
    EXPECT_EQ(platform_.MessageTexts(), std::vector<std::string>{"No note selected"});
}

TEST_F(NotesTest, ADeletedNoteKeepsItsBodyAndARebuildBringsItBack) {
    LoadGoldenNotes();
    gCurrentNote = glbNotes.FindByID("N200406020001");
    long index = 0;
    glbNotes.Delete(index);
    EXPECT_EQ(index, 1);
    EXPECT_EQ(ReadBytes(notesFile).find("Meeting notes"), std::string::npos);
    EXPECT_EQ(Body("Meeting notes.txt"), Golden("data/notes/Meeting notes.txt"));

    gCurrentNote.title = "Unknown";
    index = 0;
    glbNotes.Delete(index);
    EXPECT_EQ(platform_.MessageTexts(), std::vector<std::string>{"cant delete - Invalid note selected"});
    EXPECT_FALSE(platform_.BusyCursor());

    platform_.QueueMsgBoxAnswer(vbNo);
    glbNotes.RecreateNotesListFromNotesFolder(true);
    EXPECT_EQ(glbNotes.Count(), 2);

    platform_.ClearTranscript();
    platform_.QueueMsgBoxAnswer(vbYes);
    glbNotes.RecreateNotesListFromNotesFolder(true);
    ASSERT_EQ(platform_.Transcript().size(), 2U);
    EXPECT_EQ(platform_.Transcript()[0].title, "Confirm Recreate Notes index");
    EXPECT_EQ(platform_.Transcript()[1].text, "Finished Adding 3 notes from the files in " + DataPath() + "notes\\");
    // New identifiers of today; colours and categories gone; titles from the names.
    std::vector<std::string> ids, titles;
    for (long i = 0; i <= glbNotes.Count(); ++i) {
        cNote note;
        if (glbNotes.Table().Item(i).empty()) continue;
        note.CreateNoteFromTextLine(glbNotes.Table().Item(i), "\x1F");
        ids.push_back(note.ID);
        titles.push_back(note.title + "|" + note.Color + note.Category);
    }
    EXPECT_EQ(ids, (std::vector<std::string>{"N200406050001", "N200406050002", "N200406050003"}));
    std::sort(titles.begin(), titles.end());
    EXPECT_EQ(titles, (std::vector<std::string>{"20040602-101500.txt|", "Meeting notes.txt|", "Shopping list.txt|"}));
    // Each body is read and written back behind a line end.
    EXPECT_EQ(Body("Meeting notes.txt"), "\r\n" + Golden("data/notes/Meeting notes.txt") + "\r\n");
}

TEST_F(NotesTest, ANoteFromAFileElsewhereIsItsExactCopyUnderAFreeName) {
    LoadGoldenNotes();
    MakeFolder(Stored("inbox"));
    WriteBytes(Stored("inbox\\Shopping list.txt"), "Soap\r\nTea");
    glbNotes.CreateNoteAndADDFromFile(Stored("inbox\\Shopping list.txt"), false);
    EXPECT_EQ(gCurrentNote.title, "  Soap  Tea");
    EXPECT_EQ(gCurrentNote.Filename, "Shopping list (2).txt");
    EXPECT_EQ(gCurrentNote.DateModified, "20040605");
    EXPECT_EQ(Body("Shopping list (2).txt"), "Soap\r\nTea");
    EXPECT_EQ(Body("Shopping list.txt"), Golden("data/notes/Shopping list.txt"));  // the other note's body
    EXPECT_EQ(glbNotes.Count(), 4);

    // A file that can't be read still gives a note, after saying so.
    glbNotes.CreateNoteAndADDFromFile(Stored("inbox\\gone.txt"), true);
    EXPECT_EQ(platform_.MessageTexts(),
              std::vector<std::string>{"Error in cNotes.CreateNoteAndADDFromFile Error=53 = File not found"});
    EXPECT_EQ(gCurrentNote.title, "gone.txt");
    EXPECT_EQ(glbNotes.Count(), 5);
}

TEST_F(NotesTest, SearchLooksAtTheLinesWithoutRegardToCaseButNotAtTheTexts) {
    LoadGoldenNotes();
    glbNotes.Search(list, "MEETING");
    ASSERT_EQ(list.ListItems.Count(), 1);
    ListItem& row = list.ListItems(1);
    EXPECT_EQ(row.Text(), "- Note -");
    EXPECT_EQ(row.Tag(), Lines("allnotes.dat")[1]);
    EXPECT_EQ(row.SubItems(3) + "|" + row.SubItems(4) + "|" + row.SubItems(5), "Note|Meeting notes|note");
    EXPECT_EQ(row.ListSubItems(4).ForeColor(), OleColor{0xC00000});
    list.ListItems.Clear();
    glbNotes.Search(list, "budget");  // a word of a text only
    EXPECT_EQ(list.ListItems.Count(), 0);
}

TEST_F(NotesTest, TheNoteListShowsTheTitlesInTheirColours) {
    LoadGoldenNotes();
    glbNotes.SaveToFile();
    glbNotes.DisplayInListView(list);
    ASSERT_EQ(list.ColumnHeaders.Count(), 2);
    EXPECT_EQ(list.ColumnHeaders(2).Text(), "Title");
    EXPECT_EQ(list.ColumnHeaders(2).Width(), 3540);
    ASSERT_EQ(list.ListItems.Count(), 3);
    EXPECT_EQ(list.ListItems(1).SubItems(1), "Shopping list");
    EXPECT_EQ(list.ListItems(1).ForeColor(), OleColor{0x008080});
    EXPECT_EQ(list.ListItems(3).ListSubItems.Count(), 1);
    EXPECT_EQ(glbNotes.GetFromList(&list.ListItems(2))->Filename, "Meeting notes.txt");
    EXPECT_EQ(MainForm().status.Panels(1).Text(), "3 Notes");

    glbNotes.ExportToFile(Data("note.htm"));
    const std::string page = ReadBytes(Data("note.htm"));
    EXPECT_NE(page.find("<TR><TD width=15%>20040601\r\n</td><TD width=85%>\r\n</td></tr>\r\n"), std::string::npos);
    EXPECT_NE(page.find("<BODY><H1>List of unfinished notes</h1></body></html>\r\n"
                        "<TABLE width=95% align=center border=1><TR>    \r\n"),
              std::string::npos);
}
