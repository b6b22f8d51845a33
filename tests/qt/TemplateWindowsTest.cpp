// The windows of the event templates and of a phrase list: every field beside its
// caption and inside the window, every heading of the list whole, and a screenshot of
// each under screenshots/.
#include <gtest/gtest.h>

#include <QHeaderView>
#include <QTreeView>
#include <QWidget>

#include "ProgramFixture.h"
#include "ViewTestSupport.h"
#include "dialogs/frmEditEvent.h"
#include "dialogs/frmListAndDetailsSubForm.h"
#include "dialogs/frmTemplateList.h"
#include "foundation/ProgramState.h"
#include "qt/views/ControlWidget.h"
#include "qt/views/FormWindow.h"
#include "qt/views/ListViewWidget.h"

namespace orbidex {

class TemplateWindowsTest : public test::ProgramFixture {};

TEST_F(TemplateWindowsTest, TheEventTemplatesShowTheirListBesideTheSelectedTemplate) {
    WriteBytes(gStrDataPath + "template_event.dat",
               "X200406010001\x1F"
               "Dentist check\x1F"
               "30\x1F"
               "Health\x1F"
               "Bring the insurance card\r\nRoom 2\x1F\x1E"
               "X200406010002\x1F"
               "Team lunch\x1F"
               "60\x1F"
               "Social\x1F\x1F\x1E");
    platform_.QueueFormScript("frmListAndDetailsSubForm", [](Form& form) {
        auto& templates = static_cast<frmListAndDetailsSubForm&>(form);
        FormWindow window(form);
        window.show();
        test::ProcessEvents();
        const QRect inside = window.rect();
        for (Control* control :
             std::initializer_list<Control*>{&templates.txt(1), &templates.txt(2), &templates.txt(3),
                                             &templates.richTextBox, &templates.lstList, &templates.cmdOK}) {
            QWidget* view = window.viewOf(*control);
            ASSERT_NE(view, nullptr) << control->Name();
            EXPECT_TRUE(view->isVisible()) << control->Name();
            EXPECT_TRUE(inside.contains(view->geometry())) << control->Name();
        }
        EXPECT_FALSE(window.viewOf(templates.labelID(0))->isVisible()) << "the key is not shown";
        EXPECT_LT(window.viewOf(templates.lbl(1))->geometry().right(), window.viewOf(templates.txt(1))->x());
        EXPECT_LT(window.viewOf(templates.lstList)->geometry().right(), window.viewOf(templates.lbl(1))->x());

        // Each heading of the list but the last, which fills the rest, has room for its caption.
        QTreeView* list = qobject_cast<ListViewWidget*>(window.viewOf(templates.lstList))->treeView();
        ASSERT_NE(list, nullptr);
        QHeaderView* header = list->header();
        ASSERT_EQ(header->count(), 5);
        EXPECT_TRUE(header->isSectionHidden(0)) << "the key's column";
        for (int section = 1; section < 4; ++section) {
            const QString caption = header->model()->headerData(section, Qt::Horizontal).toString().trimmed();
            EXPECT_GE(header->sectionSize(section), header->fontMetrics().horizontalAdvance(caption) + 8)
                << caption.toStdString();
        }
        test::SaveScreenshot(window, QStringLiteral("event-templates"));
        templates.Unload();
    });
    frmEditEvent editor;
    editor.cmdTemplate_Click();
}

TEST_F(TemplateWindowsTest, APhraseListShowsItsEntriesAndButtons) {
    WriteBytes(gStrDataPath + "actions.txt", "View\r\nEdit\r\nPhone\r\nEmail\r\nVisit\r\n");
    frmTemplateList list;
    list.lblFname.Caption = gStrDataPath + "actions.txt";
    list.Load();
    list.lstPhrases.ListIndex = 2;
    FormWindow window(list);
    window.show();
    test::ProcessEvents();
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Edit List"));
    for (Control* control :
         std::initializer_list<Control*>{&list.lstPhrases, &list.txtPhrase, &list.cmdToolbar(2), &list.cmdOK})
        EXPECT_TRUE(window.rect().contains(window.viewOf(*control)->geometry())) << control->Name();
    test::SaveScreenshot(window, QStringLiteral("phrase-list"));
}

}  // namespace orbidex
