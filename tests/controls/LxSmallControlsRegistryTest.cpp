#include <gtest/gtest.h>

#include <QWidget>

#include <memory>

#include "lxcomp/LxRegistry.h"

namespace {

TEST(SmallControls, RegisterOnThePaletteAndCreateThemselves) {
  lx::RegisterAllComponents();
  lx::RegisterAllComponents();  // twice stays listed once
  const struct {
    const char* name;
    const char* include;
  } expected[] = {{"TLxOrigin", "lxcomp/LxOrigin.h"},
                  {"TLxOnOffButton", "lxcomp/LxOnOffButton.h"},
                  {"TLxButtonGroup", "lxcomp/LxButtonGroupBox.h"},
                  {"TLxTabControl", "lxcomp/LxTabControl.h"}};
  for (const auto& e : expected) {
    int found = 0;
    for (const lx::TRegisteredComponent& entry : lx::RegisteredComponents()) {
      if (entry.Class.ClassName != e.name) continue;
      ++found;
      EXPECT_EQ(entry.Page, "Quarnel");
      EXPECT_EQ(entry.Class.IncludeFile, e.include);
      ASSERT_TRUE(entry.Class.Create);
      QWidget parent;
      QWidget* control = entry.Class.Create(&parent);
      ASSERT_NE(control, nullptr);
      EXPECT_EQ(control->metaObject()->className(), QString("lx::") + e.name);
      EXPECT_TRUE(control->focusPolicy() & Qt::TabFocus) << e.name;
      EXPECT_FALSE(control->accessibleName().isEmpty()) << e.name;
    }
    EXPECT_EQ(found, 1) << e.name;
  }
}

}  // namespace
