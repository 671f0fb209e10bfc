#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
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

// The visible buttons of a box, left to right.
QStringList VisibleButtons(QWidget* box) {
  QList<QPushButton*> buttons;
  for (auto* b : box->findChildren<QPushButton*>())
    if (b->isVisible()) buttons.append(b);
  std::sort(buttons.begin(), buttons.end(), [](auto* a, auto* b) { return a->x() < b->x(); });
  QStringList names;
  for (auto* b : buttons)
    names << b->objectName();
  return names;
}

TEST_F(Boxes, MessageKindsChooseCaptionButtonsAndResult) {
  struct Case {
    int kind, help;
    QString caption;
    QStringList buttons;
    const char* press;
    int result;
  };
  const Case cases[] = {
      {-1, 0, "Korvet 6 - Error", {"OkButton"}, "OkButton", lx::mrOk},
      {0, 0, "Korvet 6", {"OkButton", "CancelButton"}, "CancelButton", lx::mrCancel},
      {1, 0, "Korvet 6", {"YesButton", "NoButton"}, "NoButton", lx::mrNo},
      {2, 0, "Korvet 6", {"YesButton", "NoButton", "CancelButton"}, "YesButton", lx::mrYes},
      {2,
       1234,
       "Korvet 6",
       {"YesButton", "NoButton", "CancelButton", "HelpButton"},
       "NoButton",
       lx::mrNo},
      {5, 7, "Korvet 6", {"OkButton", "HelpButton"}, "OkButton", lx::mrOk},
  };
  for (const Case& c : cases) {
    ModalDriver::WhenModal([&](QWidget* box) {
      EXPECT_EQ(box->windowTitle(), c.caption);
      EXPECT_EQ(VisibleButtons(box), c.buttons) << c.kind;
      EXPECT_EQ(Find<QLabel>(box, "Content")->text(), "Is <b>this</b> shown?");
      Click(box, c.press);
    });
    EXPECT_EQ(lx::ShowK6Message(QStringLiteral("Is <b>this</b> shown?"), c.kind, c.help), c.result)
        << c.kind;
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

TEST_F(Boxes, EscapePressesTheVisibleCancelButton) {
  const std::pair<int, int> cases[] = {
      {-1, lx::mrCancel}, {0, lx::mrCancel}, {1, lx::mrNo}, {2, lx::mrCancel}};
  for (const auto& [kind, result] : cases) {
    ModalDriver::WhenModal([](QWidget* box) { QTest::keyClick(box, Qt::Key_Escape); });
    EXPECT_EQ(lx::ShowK6Message(L"q", kind, 0), result) << kind;
  }
}

TEST_F(Boxes, LongTextGrowsTheBoxThatThenKeepsItsHeight) {
  lx::TLxDlgError shortBox(&main_, L"Short.", 0, 0);
  const QString longText =
      QString("A long message that has to wrap over several lines. ").repeated(8);
  lx::TLxDlgError longBox(&main_, longText, 0, 0);
  longBox.show();
  EXPECT_GT(longBox.height(), shortBox.height());
  EXPECT_GE(longBox.Content()->height(),
            longBox.Content()->heightForWidth(longBox.Content()->width()));
  longBox.resize(longBox.width(), 50);
  EXPECT_GE(longBox.height(), longBox.minimumHeight());
  EXPECT_GT(longBox.minimumHeight(), shortBox.minimumHeight());
  const QRect text = longBox.Content()->geometry();
  EXPECT_LE(longBox.Content()->mapTo(&longBox, QPoint(0, text.height())).y(),
            longBox.BottomPanel()->y());
}

TEST_F(Boxes, InputReturnsTheTextOnlyOnOk) {
  QString text = "old";
  ModalDriver::WhenModal([](QWidget* box) {
    EXPECT_EQ(box->windowTitle(), "Name");
    EXPECT_EQ(Find<QLabel>(box, "Content")->text(), "Enter a name:");
    EXPECT_FALSE(Find<QPushButton>(box, "HelpButton")->isVisible());
    lxtest::TypeInto(box, "EditBox", "new");
    Click(box, "CancelButton");
  });
  EXPECT_FALSE(lx::ShowK6InputDlg(&text, L"Name", L"Enter a name:", 0, nullptr));
  EXPECT_EQ(text, "old");
  ModalDriver::WhenModal([](QWidget* box) {
    EXPECT_EQ(Find<QLineEdit>(box, "EditBox")->text(), "old");
    lxtest::TypeInto(box, "EditBox", "new");
    QTest::keyClick(Find<QLineEdit>(box, "EditBox"), Qt::Key_Return);
  });
  EXPECT_TRUE(lx::ShowK6InputDlg(&text, L"Name", L"Enter a name:", 5, nullptr));
  EXPECT_EQ(text, "new");
  ModalDriver::WhenModal([](QWidget* box) { box->close(); });
  EXPECT_FALSE(lx::ShowK6InputDlg(nullptr, nullptr, nullptr, 0, nullptr));
}

TEST_F(Boxes, AllowedCharactersFilterTyping) {
  QString text;
  ModalDriver::WhenModal([](QWidget* box) {
    auto* edit = Find<QLineEdit>(box, "EditBox");
    edit->setFocus();
    QTest::keyClicks(edit, "1a2-b3");
    EXPECT_EQ(edit->text(), "123");
    QTest::keyClick(edit, Qt::Key_Backspace);
    EXPECT_EQ(edit->text(), "12");
    QTest::keyClick(edit, Qt::Key_Enter);
  });
  EXPECT_TRUE(lx::ShowK6InputDlg(&text, L"Copies", L"How many?", 0, L"0123456789"));
  EXPECT_EQ(text, "12");
  ModalDriver::WhenModal([](QWidget* box) {
    QTest::keyClicks(Find<QLineEdit>(box, "EditBox"), "any text");
    Click(box, "OkButton");
  });
  EXPECT_TRUE(lx::ShowK6InputDlg(&text, L"Any", L"Anything:", 0, L""));
  EXPECT_EQ(text, "any text");
}

TEST_F(Boxes, CheckBoxIsWrittenOnlyOnOk) {
  for (const bool ok : {false, true}) {
    QString text = "x";
    bool checked = false;
    ModalDriver::WhenModal([ok](QWidget* box) {
      auto* cb = Find<QCheckBox>(box, "CB");
      EXPECT_TRUE(cb->isVisible());
      EXPECT_EQ(cb->text(), "Open it");
      QTest::mouseClick(cb, Qt::LeftButton, {}, QPoint(6, cb->height() / 2));  // the box
      Click(box, ok ? "OkButton" : "CancelButton");
    });
    EXPECT_EQ(lx::ShowK6InputDlgWithCheckBox(&text, &checked, L"T", L"Q", L"Open it", 0, nullptr),
              ok);
    EXPECT_EQ(checked, ok);
  }
}

TEST_F(Boxes, ComboBoxInputOffersOnlyOk) {
  QString text;
  QStringList items{"NAND2", "NOR2", "INV"};
  ModalDriver::WhenModal([](QWidget* box) {
    EXPECT_EQ(VisibleButtons(box), QStringList({"OkButton", "HelpButton"}));
    EXPECT_FALSE(Find<QLineEdit>(box, "EditBox")->isVisible());
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
  ModalDriver::WhenModal([](QWidget* box) {
    EXPECT_EQ(box->windowTitle(), "Replace existing symbols?");
    auto* list = Find<QListWidget>(box, "ListBox1");
    ASSERT_EQ(list->count(), 2);
    EXPECT_EQ(list->item(1)->text(), "PAD");
    EXPECT_EQ(VisibleButtons(box), QStringList({"OkButton", "CancelButton"}));
    Click(box, "OkButton");
  });
  EXPECT_EQ(lx::ShowOverwriteMessage(&names, 0), lx::mrOk);
  ModalDriver::WhenModal([](QWidget* box) {
    EXPECT_EQ(VisibleButtons(box), QStringList({"OkButton", "CancelButton", "HelpButton"}));
    QTest::keyClick(box, Qt::Key_Escape);
  });
  EXPECT_EQ(lx::ShowOverwriteMessage(nullptr, 4200), lx::mrCancel);
}

}  // namespace
