// Event templates kept through the list-and-details form, the task template, and the
// phrase lists, as a user keeps them, read back from their files.
#include <functional>

#include "DialogFixture.h"
#include "dialogs/frmEditEvent.h"
#include "dialogs/frmListAndDetailsSubForm.h"
#include "dialogs/frmTemplateEdit.h"
#include "dialogs/frmTemplateList.h"
#include "foundation/FileSystem.h"

using namespace orbidex;

namespace {

// A record of a record file: each field closed by 0x1F, the record by 0x1E.
std::string Record(const std::vector<std::string>& fields) {
    return orbidex::test::Fields(fields) + "\x1E";
}

void Type(TextBox& box, const std::string& text) {
    box.UserEdit(text, static_cast<long>(text.size()));
}

}  // namespace

class TemplatesTest : public orbidex::test::DialogFixture {
protected:
    void OnTemplates(std::function<void(frmListAndDetailsSubForm&)> script) {
        platform_.QueueFormScript("frmListAndDetailsSubForm",
                                  [script](Form& form) { script(static_cast<frmListAndDetailsSubForm&>(form)); });
    }
    void OnList(std::function<void(frmTemplateList&)> script) {
        platform_.QueueFormScript("frmTemplateList",
                                  [script](Form& form) { script(static_cast<frmTemplateList&>(form)); });
    }
    /// Opens the event editor on a new event, presses "Templates...", then Cancel.
    void TemplatesFromACancelledEvent() {
        platform_.QueueFormScript("frmEditEvent", [](Form& form) {
            auto& editor = static_cast<frmEditEvent&>(form);
            editor.cmdTemplate.UserClick();
            editor.cmdCancel.UserClick();
        });
        glbEvents.DiaryEventAdd(June(7), "1000", "");
    }
};

TEST_F(TemplatesTest, EventTemplatesAreAddedEditedAndKeptByTheListAndDetailsForm) {
    OnTemplates([this](frmListAndDetailsSubForm& form) {
        EXPECT_EQ(form.Caption(), "EventTemplate");
        EXPECT_EQ(form.lstList.ColumnHeaders.Count(), 5);
        EXPECT_EQ(form.lstList.ColumnHeaders(2).Text(), "Name     ");
        EXPECT_EQ(form.lstList.ColumnHeaders(1).Width(), 0) << "the key's column is not shown";
        for (const char* name : {"Dentist check", "Team lunch"}) {
            platform_.QueueInputAnswer(name);
            form.cmdAdd.UserClick();
            Type(form.txt(2), "30");
        }
        form.txt(3).UserEdit("Social", 6);
        form.richTextBox.UserEdit({TextRun{"Bring card\r\nRoom 2", {}}}, 18);
        form.cmdOK.UserClick();
    });
    TemplatesFromACancelledEvent();
    // Cancelling the event keeps the templates; no event is added.
    const std::string kept = Record({"X200406050001", "Dentist check", "30", "", ""}) +
                             Record({"X200406050002", "Team lunch", "30", "Social", "Bring card\r\nRoom 2"});
    EXPECT_EQ(ReadBytes(Data("template_event.dat")), kept);
    EXPECT_EQ(ReadBytes(Data("D200406.dat")), "\r\n") << "the cancelled event leaves no line";

    OnTemplates([this](frmListAndDetailsSubForm& form) {
        ASSERT_EQ(form.lstList.ListItems.Count(), 2);
        EXPECT_EQ(form.labelID(0).Caption(), "X200406050001") << "the first record is shown";
        EXPECT_EQ(form.txt(1).Text(), "Dentist check");
        form.lstList.UserClickItem(form.lstList.ListItems(2));
        EXPECT_EQ(form.richTextBox.Text(), "Bring card\r\nRoom 2");
        Type(form.txt(1), "Team dinner");
        platform_.QueueMsgBoxAnswer(vbNo);
        form.UserClose();
    });
    TemplatesFromACancelledEvent();
    EXPECT_EQ(platform_.Transcript().back().title, "Save Changes");
    EXPECT_EQ(ReadBytes(Data("template_event.dat")), kept) << "No keeps the file as it was";

    OnTemplates([](frmListAndDetailsSubForm& form) {
        form.lstList.UserClickItem(form.lstList.ListItems(1));
        form.cmdDelete.UserClick();
        form.cmdSave.UserClick();
        form.cmdOK.UserClick();
    });
    TemplatesFromACancelledEvent();
    EXPECT_EQ(ReadBytes(Data("template_event.dat")),
              Record({"X200406050002", "Team lunch", "30", "Social", "Bring card\r\nRoom 2"}));

    // Opened and closed without a change: nothing to update, nothing asked.
    OnTemplates([](frmListAndDetailsSubForm& form) {
        EXPECT_EQ(form.txt(1).Text(), "Team lunch");
        EXPECT_FALSE(form.cmdUpdate.Enabled());
        form.UserClose();
    });
    platform_.ClearTranscript();
    TemplatesFromACancelledEvent();
    EXPECT_TRUE(platform_.Transcript().empty());
}

TEST_F(TemplatesTest, TemplatesThatCantBeWrittenKeepTheFormOpenAndUnsaved) {
    MakeFolder(Data("template_event.dat"));  // where the record file should be
    const std::string refused =
        "Error in SaveListToFile saving " + Data("template_event.dat") + " Error=75 = Path/File access error";
    const std::string unsaved = "Data has not been saved - do you want to save the changes?";
    OnTemplates([&](frmListAndDetailsSubForm& form) {
        platform_.QueueInputAnswer("Dentist check");
        form.cmdAdd.UserClick();
        // Each way of saving is told of the failure and keeps the list to be saved.
        const struct {
            const char* what;
            std::function<void()> save;
            std::vector<std::string> messages;
        } cases[] = {
            {"Update",
             [&] {
                 Type(form.txt(2), "30");
                 form.cmdUpdate.UserClick();
             },
             {refused}},
            {"Save", [&] { form.cmdSave.UserClick(); }, {refused}},
            {"OK", [&] { form.cmdOK.UserClick(); }, {refused}},
            {"closed, Yes to saving",
             [&] {
                 platform_.QueueMsgBoxAnswer(vbYes);
                 form.UserClose();
             },
             {unsaved, refused}},
        };
        for (const auto& c : cases) {
            platform_.ClearTranscript();
            c.save();
            EXPECT_EQ(platform_.MessageTexts(), c.messages) << c.what;
            EXPECT_FALSE(form.IsUnloaded()) << c.what;
            EXPECT_TRUE(glbConfig.dataChanged) << c.what;
        }
        EXPECT_EQ(form.lstList.ListItems(1).SubItems(2), "30") << "the list keeps what was typed";
        platform_.QueueMsgBoxAnswer(vbNo);
        EXPECT_TRUE(form.UserClose());
    });
    TemplatesFromACancelledEvent();
    EXPECT_TRUE(FolderExists(Data("template_event.dat")));
}

TEST_F(TemplatesTest, APhraseListIsEditedAndOnlyOKWritesIt) {
    const std::string file = Data("actions.txt");
    WriteBytes(file, "Alpha\r\nbeta\r\nGamma Beta\r\n");
    frmTemplateList list;
    list.lblFname.Caption = file;
    list.Load();
    ASSERT_EQ(list.lstPhrases.ListCount(), 3);
    list.lstPhrases.UserSelect(0);
    EXPECT_EQ(list.txtPhrase.Text(), "Alpha");

    const struct {
        void (frmTemplateList::*command)();
        const char* answer;
        long selected;  ///< after the command
        std::vector<std::string> phrases;
    } steps[] = {
        {&frmTemplateList::mnuPhraseFind_Click, "Beta", 2, {"Alpha", "beta", "Gamma Beta"}},
        {&frmTemplateList::mnuPhraseFind_Click, "a", 0, {"Alpha", "beta", "Gamma Beta"}},
        {&frmTemplateList::mnuPhraseFind_Click, "zzz", 0, {"Alpha", "beta", "Gamma Beta"}},
        {&frmTemplateList::mnuPhraseAdd_Click, "", 0, {"Alpha", "beta", "Gamma Beta"}},
        {&frmTemplateList::mnuPhraseAdd_Click, "Delta", 3, {"Alpha", "beta", "Gamma Beta", "Delta"}},
        {&frmTemplateList::mnuPhraseEdit_Click, "", 3, {"Alpha", "beta", "Gamma Beta", "Delta"}},
        {&frmTemplateList::mnuPhraseEdit_Click, "Delta 2", 3, {"Alpha", "beta", "Gamma Beta", "Delta 2"}},
    };
    for (const auto& step : steps) {
        platform_.QueueInputAnswer(step.answer);
        (list.*step.command)();
        EXPECT_EQ(list.lstPhrases.ListIndex(), step.selected) << step.answer;
        std::vector<std::string> phrases;
        for (long i = 0; i < list.lstPhrases.ListCount(); ++i) phrases.push_back(list.lstPhrases.List(i));
        EXPECT_EQ(phrases, step.phrases) << step.answer;
    }
    EXPECT_EQ(platform_.Transcript()[4].title, "Adding Item to List");
    EXPECT_EQ(platform_.Transcript()[5].title, "Editing Existing Phrase in List");
    list.lstPhrases.UserSelect(0);
    list.cmdToolbar(2).UserClick();
    EXPECT_EQ(ReadBytes(file), "Alpha\r\nbeta\r\nGamma Beta\r\n") << "nothing is written before OK";
    list.cmdOK.UserClick();
    EXPECT_EQ(ReadBytes(file), "beta\r\nGamma Beta\r\nDelta 2\r\n");
}

TEST_F(TemplatesTest, TheTaskTemplateIsKeptByOKAndItsActionsAreAPhraseList) {
    frmTemplateEdit dialog;
    OnList([](frmTemplateList& list) {
        EXPECT_EQ(list.lstPhrases.ListCount(), 0);
        list.lstPhrases.AddItem("Audit");
        list.cmdOK.UserClick();
    });
    dialog.Load();
    EXPECT_EQ(dialog.cmbAction.List(0), "View") << "the usual actions while there is no list";
    dialog.cmbAction.UserDblClick();
    EXPECT_EQ(ReadBytes(Data("actions.txt")), "Audit\r\n");
    EXPECT_EQ(dialog.cmbAction.List(0), "Audit");

    Type(dialog.txtDetails, "Weekly report");
    Type(dialog.txtLength, "45");
    dialog.cmbAction.UserEdit("Audit");
    dialog.cmdOK.UserClick();
    EXPECT_EQ(ReadBytes(Data("template_task.dat")), Record({"Weekly report", "45", "Audit", ""}));

    frmTemplateEdit again;
    again.Load();
    EXPECT_EQ(again.txtDetails.Text(), "Weekly report");
    Type(again.txtDetails, "Changed");
    again.cmdCancel.UserClick();
    EXPECT_EQ(ReadBytes(Data("template_task.dat")), Record({"Weekly report", "45", "Audit", ""}));
}
