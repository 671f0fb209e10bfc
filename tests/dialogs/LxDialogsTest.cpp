#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QPushButton>

#include "dialogs/DialogFixture.h"
#include "lxcomp/LxDialogs.h"
#include "lxcomp/LxDlgError.h"
#include "lxcomp/LxDlgInput.h"

namespace {

using lxtest::Click;
using lxtest::Find;
using lxtest::ModalDriver;

// The boxes themselves are shown: no hook.
class Boxes : public lxtest::DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    lx::SetMessageHook(nullptr);
  }
};

// The visible buttons of a box, left to right, without the "Button" of their names.
QString VisibleButtons(QWidget* box) {
  QList<QPushButton*> buttons = box->findChildren<QPushButton*>();
  buttons.removeIf([](QPushButton* b) { return !b->isVisible(); });
  std::sort(buttons.begin(), buttons.end(), [](auto* a, auto* b) { return a->x() < b->x(); });
  QStringList names;
  for (auto* b : buttons)
    names << b->objectName().chopped(6);
  return names.join(' ');
}
// Presses a button, Escape, or Enter on a button that has the focus ("Enter No").
void Press(QWidget* box, const QString& button) {
  if (button == "Escape") return QTest::keyClick(box, Qt::Key_Escape);
  if (button.startsWith("Enter ")) {
    auto* focused = Find<QPushButton>(box, button.mid(6) + "Button");
    focused->setFocus();
    return QTest::keyClick(focused, Qt::Key_Return);
  }
  Click(box, button + "Button");
}

TEST_F(Boxes, MessageKindsChooseCaptionButtonsAndResult) {
  const std::tuple<int, int, const char*, const char*, int> cases[] = {
      {-1, 0, "Ok", "Ok", lx::mrOk},
      {-1, 0, "Ok", "Escape", lx::mrCancel},
      {0, 0, "Ok Cancel", "Cancel", lx::mrCancel},
      {0, 0, "Ok Cancel", "Escape", lx::mrCancel},
      {1, 0, "Yes No", "No", lx::mrNo},
      {1, 0, "Yes No", "Escape", lx::mrNo},
      {1, 0, "Yes No", "Enter No", lx::mrNo},
      {2, 0, "Yes No Cancel", "Yes", lx::mrYes},
      {2, 0, "Yes No Cancel", "Escape", lx::mrCancel},
      {2, 1234, "Yes No Cancel Help", "No", lx::mrNo},
      {5, 7, "Ok Help", "Ok", lx::mrOk},
  };
  for (const auto& [kind, help, buttons, press, result] : cases) {
    ModalDriver::WhenModal([&](QWidget* box) {
      EXPECT_EQ(box->windowTitle(), kind < 0 ? "Korvet 6 - Error" : "Korvet 6");
      EXPECT_EQ(VisibleButtons(box), buttons) << kind;
      EXPECT_EQ(lxtest::Caption(box, "Content"), "Is <b>this</b> shown?");
      Press(box, press);
    });
    EXPECT_EQ(lx::ShowK6Message(QStringLiteral("Is <b>this</b> shown?"), kind, help), result)
        << kind << " " << press;
  }
}

TEST_F(Boxes, ButtonsCloseUpToTheRightWithoutHelp) {
  lx::TLxDlgError withHelp(&main_, L"q", 2, 1234), without(&main_, L"q", 2, 0);
  withHelp.show();
  without.show();
  EXPECT_EQ(without.CancelButton()->x(), withHelp.HelpButton()->x());
  EXPECT_EQ(without.NoButton()->x(), withHelp.CancelButton()->x());
  EXPECT_EQ(without.YesButton()->x(), withHelp.NoButton()->x());
  EXPECT_FALSE(without.HelpButton()->isEnabled());
  const QStringList texts{withHelp.YesButton()->text(), withHelp.NoButton()->text(),
                          withHelp.OkButton()->text(), withHelp.CancelButton()->text()};
  EXPECT_EQ(texts, QStringList({"Yes", "No", "Ok", "Cancel"}));
  EXPECT_EQ(withHelp.GetHelpContext(), 1234);
}

TEST_F(Boxes, LongTextGrowsTheBoxThatThenKeepsItsHeight) {
  lx::TLxDlgError shortBox(&main_, L"Short.", 0, 0);
  lx::TLxDlgError longBox(&main_, QString("A long message that has to wrap. ").repeated(12), 0, 0);
  longBox.show();
  EXPECT_GT(longBox.height(), shortBox.height());
  QLabel* text = longBox.Content();
  EXPECT_GE(text->height(), text->heightForWidth(text->width()));
  longBox.resize(longBox.width(), 50);
  EXPECT_GE(longBox.height(), longBox.minimumHeight());
  EXPECT_GT(longBox.minimumHeight(), shortBox.minimumHeight());
  EXPECT_LE(text->mapTo(&longBox, QPoint(0, text->height())).y(), longBox.BottomPanel()->y());
}

TEST_F(Boxes, InputWritesTheTextAndTheCheckMarkOnlyOnOk) {
  for (const bool withCheckBox : {false, true}) {
    for (const bool ok : {false, true}) {
      QString text = "old";
      bool checked = false;
      ModalDriver::WhenModal([=](QWidget* box) {
        EXPECT_EQ(box->windowTitle(), "Name");
        EXPECT_EQ(lxtest::Caption(box, "Content"), "Enter a name:");
        EXPECT_EQ(VisibleButtons(box), ok ? "Ok Cancel Help" : "Ok Cancel");
        EXPECT_EQ(lxtest::Field(box, "EditBox"), "old");
        auto* cb = Find<QCheckBox>(box, "CB");
        EXPECT_EQ(cb->isVisible() ? cb->text() : "hidden", withCheckBox ? "Open it" : "hidden");
        QTest::mouseClick(cb, Qt::LeftButton, {}, QPoint(6, cb->height() / 2));  // the box
        lxtest::TypeInto(box, "EditBox", "new");
        ok ? QTest::keyClick(Find<QLineEdit>(box, "EditBox"), Qt::Key_Return)
           : Click(box, "CancelButton");
      });
      const int help = ok ? 5 : 0;
      EXPECT_EQ(withCheckBox
                    ? lx::ShowK6InputDlgWithCheckBox(&text, &checked, L"Name", L"Enter a name:",
                                                     L"Open it", help, nullptr)
                    : lx::ShowK6InputDlg(&text, L"Name", L"Enter a name:", help, nullptr),
                ok);
      EXPECT_EQ(text, ok ? "new" : "old");
      EXPECT_EQ(checked, ok && withCheckBox);
    }
  }
  ModalDriver::WhenModal([](QWidget* box) { box->close(); });
  EXPECT_FALSE(lx::ShowK6InputDlg(nullptr, nullptr, nullptr, 0, nullptr));
}

TEST_F(Boxes, AllowedCharactersFilterTyping) {
  const std::tuple<const wchar_t*, const char*, const char*> cases[] = {
      {L"0123456789", "1a2-b3", "12"}, {L"", "any text", "any tex"}};
  for (const auto& [allowed, typed, result] : cases) {
    QString text;
    ModalDriver::WhenModal([&](QWidget* box) {
      auto* edit = Find<QLineEdit>(box, "EditBox");
      edit->setFocus();
      QTest::keyClicks(edit, typed);
      QTest::keyClick(edit, Qt::Key_Backspace);
      QTest::keyClick(edit, Qt::Key_Enter);
    });
    EXPECT_TRUE(lx::ShowK6InputDlg(&text, L"Copies", L"How many?", 0, allowed));
    EXPECT_EQ(text, result);
  }
}

TEST_F(Boxes, ComboBoxInputOffersOnlyOk) {
  QString text;
  QStringList items{"NAND2", "NOR2", "INV"};
  ModalDriver::WhenModal([](QWidget* box) {
    EXPECT_EQ(VisibleButtons(box), "Ok Help");
    EXPECT_FALSE(lxtest::IsShown(box, "EditBox"));
    auto* combo = Find<QComboBox>(box, "ComboBox");
    EXPECT_EQ(combo->currentText(), "NAND2");
    combo->setCurrentIndex(2);
    Click(box, "OkButton");
  });
  EXPECT_TRUE(lx::ShowK6InputDlgComboBox(&text, &items, L"T", L"Q", 9));
  EXPECT_EQ(text, "INV");
  ModalDriver::WhenModal([](QWidget* box) { QTest::keyClick(box, Qt::Key_Escape); });
  EXPECT_FALSE(lx::ShowK6InputDlgComboBox(&text, nullptr, L"T", L"Q", 0));
}

TEST_F(Boxes, OverwriteListsTheNames) {
  QStringList names{"NAND2", "PAD"};
  for (const int help : {0, 4200}) {
    ModalDriver::WhenModal([help](QWidget* box) {
      EXPECT_EQ(box->windowTitle(), "Replace existing symbols?");
      QStringList listed;
      for (auto* item : Find<QListWidget>(box, "ListBox1")->findItems("*", Qt::MatchWildcard))
        listed << item->text();
      EXPECT_EQ(listed.join(' '), help ? "" : "NAND2 PAD");
      EXPECT_EQ(VisibleButtons(box), help ? "Ok Cancel Help" : "Ok Cancel");
      Press(box, help ? "Escape" : "Ok");
    });
    EXPECT_EQ(lx::ShowOverwriteMessage(help ? nullptr : &names, help),
              help ? lx::mrCancel : lx::mrOk);
  }
}

}  // namespace
