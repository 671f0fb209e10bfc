#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QRandomGenerator>

#include <cstring>
#include <vector>

#include "dialogs/DialogFixture.h"
#include "lxcomp/LxDlgCircle.h"

namespace {

using lxtest::Click;
using lxtest::Find;
using lxtest::ModalDriver;
using lxtest::TypeInto;

class CircleDialog : public lxtest::DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    for (int n : {10, 20, 30})
      layers_.emplace_back(n, n, 0, QStringLiteral("L%1").arg(n), -1);
    layers_[0].Next = &layers_[1];
    layers_[1].Next = &layers_[2];
  }
  lx::CircleSettings Record() { return {1500, -2000, 5000, 20, &layers_[0]}; }
  static bool Same(const lx::CircleSettings& a, const lx::CircleSettings& b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
  }
  std::vector<lx::TK5Layer> layers_;
};

TEST_F(CircleDialog, ShowsTheRecordAndWritesWhatWasTyped) {
  auto record = Record();
  ModalDriver::WhenModal([](QWidget* dlg) {
    EXPECT_EQ(dlg->windowTitle(), "Circle properties...");
    EXPECT_EQ(Find<QLineEdit>(dlg, "EditX")->text(), "1.5");
    EXPECT_EQ(Find<QLineEdit>(dlg, "EditY")->text(), "-2");
    EXPECT_EQ(Find<QLineEdit>(dlg, "EditR")->text(), "5");
    auto* layer = Find<QComboBox>(dlg, "LayerCombo");
    EXPECT_EQ(layer->currentText(), "L20");
    layer->setCurrentIndex(2);
    TypeInto(dlg, "EditX", "10/4");
    lxtest::Leave(dlg, "EditX");
    EXPECT_EQ(Find<QLineEdit>(dlg, "EditX")->text(), "2.5");
    TypeInto(dlg, "EditR", "1,5");
    Click(dlg, "OkButton");
  });
  EXPECT_TRUE(lx::DoCircleDlg(&record));
  EXPECT_DOUBLE_EQ(record.X, 2500.0);
  EXPECT_DOUBLE_EQ(record.Y, -2000.0);
  EXPECT_DOUBLE_EQ(record.Radius, 1500.0);
  EXPECT_EQ(record.Layer, 30);
  EXPECT_TRUE(messages_.empty());
}

TEST_F(CircleDialog, AnExpressionConfirmedWithEnterIsReadAsItsValue) {
  auto record = Record();
  ModalDriver::WhenModal([](QWidget* dlg) {
    TypeInto(dlg, "EditR", "2*3.5");
    QTest::keyClick(Find<QLineEdit>(dlg, "EditR"), Qt::Key_Return);
  });
  EXPECT_TRUE(lx::DoCircleDlg(&record));
  EXPECT_DOUBLE_EQ(record.Radius, 7000.0);
}

TEST_F(CircleDialog, UnreadableFieldIsReportedAndNothingIsWritten) {
  struct Case {
    const char* field;
    QString typed;
    QString message;
  };
  const Case cases[] = {
      {"EditX", "abc", "'abc' is not a valid number"},
      {"EditY", "12.5mm", "'12.5mm' is not a valid number"},
      {"EditR", "", "'' is not a valid number"},
      {"EditR", "inf", "'inf' is not a valid number"},
      // The reader quotes its own copy, in which the first decimal comma became a point.
      {"EditX", "1,000.5", "'1.000.5' is not a valid number"},
      {"EditY", "1234567890123456789012345678x90", "'12345678901234567890' is not a valid number"},
  };
  for (const Case& c : cases) {
    auto record = Record();
    const auto before = record;
    messages_.clear();
    ModalDriver::WhenModal([&](QWidget* dlg) {
      Find<QComboBox>(dlg, "LayerCombo")->setCurrentIndex(0);
      TypeInto(dlg, c.field, c.typed);
      Click(dlg, "OkButton");
      EXPECT_TRUE(dlg->isVisible()) << c.field;
      // The field the focus goes back to, whether or not the window is active yet.
      EXPECT_EQ(dlg->focusWidget(), Find<QLineEdit>(dlg, c.field));
      Click(dlg, "CancelButton");
    });
    EXPECT_FALSE(lx::DoCircleDlg(&record));
    EXPECT_EQ(Errors(4040), QStringList{c.message}) << c.field;
    EXPECT_TRUE(Same(record, before)) << c.field;
  }
}

TEST_F(CircleDialog, CancelEscapeAndCloseBoxLeaveTheRecord) {
  for (int way = 0; way < 3; ++way) {
    auto record = Record();
    const auto before = record;
    ModalDriver::WhenModal([way](QWidget* dlg) {
      TypeInto(dlg, "EditX", "99");
      Find<QComboBox>(dlg, "LayerCombo")->setCurrentIndex(0);
      if (way == 0) Click(dlg, "CancelButton");
      if (way == 1) QTest::keyClick(dlg, Qt::Key_Escape);
      if (way == 2) dlg->close();
    });
    EXPECT_FALSE(lx::DoCircleDlg(&record));
    EXPECT_TRUE(Same(record, before)) << way;
  }
}

TEST_F(CircleDialog, LayersMayBeMissingOrUnknown) {
  auto record = Record();
  record.Layer = 99;  // not in the list: the first layer is offered and taken
  ModalDriver::WhenModal([](QWidget* dlg) {
    EXPECT_EQ(Find<QComboBox>(dlg, "LayerCombo")->currentText(), "L10");
    Click(dlg, "OkButton");
  });
  EXPECT_TRUE(lx::DoCircleDlg(&record));
  EXPECT_EQ(record.Layer, 10);
  record.Layers = nullptr;
  ModalDriver::WhenModal([](QWidget* dlg) {
    EXPECT_EQ(Find<QComboBox>(dlg, "LayerCombo")->count(), 0);
    Click(dlg, "OkButton");
  });
  EXPECT_TRUE(lx::DoCircleDlg(&record));
  EXPECT_EQ(record.Layer, 10);
}

TEST_F(CircleDialog, NullRecordJustCloses) {
  ModalDriver::WhenModal([](QWidget* dlg) {
    TypeInto(dlg, "EditX", "garbage");
    Click(dlg, "OkButton");
  });
  EXPECT_TRUE(lx::DoCircleDlg(nullptr));
  EXPECT_TRUE(messages_.empty());
}

TEST_F(CircleDialog, AnyTextInAnyFieldIsReadOrRefused) {
  const QString alphabet = "0123456789.,-+eE*/()^ abcINFxyz%";
  QRandomGenerator random(7);
  auto text = [&] {
    QString s;
    for (int n = random.bounded(12); n > 0; --n)
      s += alphabet[random.bounded(alphabet.size())];
    return s;
  };
  for (int round = 0; round < 40; ++round) {
    auto record = Record();
    const auto before = record;
    messages_.clear();
    ModalDriver::WhenModal([&](QWidget* dlg) {
      for (const char* field : {"EditX", "EditY", "EditR"}) {
        TypeInto(dlg, field, text());
        if (random.bounded(4) == 0) Find<QLineEdit>(dlg, field)->insert("µ€\t");  // pasted
        lxtest::Leave(dlg, field);
      }
      Click(dlg, "OkButton");
      if (dlg->isVisible()) Click(dlg, "CancelButton");
    });
    const bool written = lx::DoCircleDlg(&record);
    EXPECT_EQ(written, Errors(4040).isEmpty());
    if (!written) {
      EXPECT_TRUE(Same(record, before));
    }
  }
}

}  // namespace
