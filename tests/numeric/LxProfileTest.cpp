#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>

#include <cmath>
#include <string>
#include <tuple>

#include "lxcomp/LxProfile.h"
#include "numeric/IniFile.h"
#include "support/TempDir.h"

namespace {

class Profile : public ::testing::Test {
 protected:
  // Writes the bytes as the profile file and returns its path as a wide string.
  const wchar_t* WithFile(const QByteArray& bytes) {
    QFile file(dir_.Path("p.ini"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    path_ = file.fileName().toStdWString();
    return path_.c_str();
  }
  QByteArray Contents() const {
    QFile file(QString::fromStdWString(path_));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<none>");
  }
  std::wstring Wide(const QString& name) const { return dir_.Path(name).toStdWString(); }
  lxtest::TempDir dir_;
  std::wstring path_;
};

TEST_F(Profile, BoundedIntegers) {
  const wchar_t* f = WithFile("[S]\nabc=abc\nbig=50\nneg=-3\nseven=7\nten=10\nempty=\n");
  // Key, default, min, max (equal bounds: none), value.
  const std::tuple<const wchar_t*, long, long, long, long> cases[] = {
      {L"missing", 5, 1, 10, 5}, {L"abc", 5, 1, 10, 1},      {L"big", 5, 1, 10, 10},
      {L"neg", 5, 1, 10, 1},     {L"seven", 5, 1, 1, 7},     {L"ten", 5, 1, 10, 10},
      {L"empty", 50, 1, 10, 50}, {L"missing", 50, 1, 10, 10}};
  for (const auto& [key, def, min, max, expected] : cases)
    EXPECT_EQ(lx::GetIniFileInteger(f, L"S", key, def, min, max), expected)
        << QString::fromWCharArray(key).toStdString();
  EXPECT_EQ(lx::GetIniFileInteger(nullptr, L"S", L"big", 50, 1, 10), 50);
  EXPECT_EQ(lx::GetIniFileInteger(f, L"s", L"BIG", 0), 50);
}

TEST_F(Profile, LengthsRealsAndBools) {
  const wchar_t* f = WithFile(
      "; comment\r\n[Units]\r\ncomma = 2,5\r\nunit=2.5um\r\ninf=inf\r\nyes=yes\r\ntwo=2\r\n");
  EXPECT_EQ(lx::GetIniFileMicrons(f, L"units", L"comma", 7.0, 0, 0), 2500.0);
  EXPECT_EQ(lx::GetIniFileMicrons(f, L"Units", L"unit", 7.0, 100, 200), 7.0);
  EXPECT_EQ(lx::GetIniFileMicrons(f, L"Units", L"missing", 0.0000004, 0, 0), 0.0);
  EXPECT_EQ(lx::GetIniFileMicrons(f, L"Units", L"missing", 5000.0, 0, 1000.0), 1000.0);
  EXPECT_EQ(lx::GetIniFileDouble(f, L"Units", L"inf", 1, 0, 10), 10.0);
  EXPECT_EQ(lx::GetIniFileDouble(f, L"Units", L"inf", 1, 0, 0), HUGE_VAL);
  EXPECT_EQ(lx::GetIniFileDouble(nullptr, L"Units", L"inf", -5, 0, 10), -5.0);
  EXPECT_FALSE(lx::GetIniFileBool(f, L"Units", L"yes", true));
  EXPECT_TRUE(lx::GetIniFileBool(f, L"Units", L"two", false));
  EXPECT_TRUE(lx::GetIniFileBool(f, L"Units", L"missing", true));
}

TEST_F(Profile, StringsAreCutTo254Characters) {
  const wchar_t* f = WithFile("[S]\nlong=" + QByteArray(300, 'x') + "\nquoted=\"a b\"\nempty=\n");
  const std::tuple<const wchar_t*, const wchar_t*, const wchar_t*, QString> cases[] = {
      {f, L"long", L"d", QString(254, u'x')},
      {f, L"quoted", L"d", "a b"},
      {f, L"empty", L"d", "d"},
      {f, L"missing", nullptr, ""},
      {nullptr, L"long", L"d", "d"}};
  for (const auto& [file, key, def, expected] : cases) {
    QString out = "stale";
    lx::GetIniFileString(file, L"S", key, def, &out);
    EXPECT_EQ(out, expected) << QString::fromWCharArray(key).toStdString();
  }
}

TEST_F(Profile, WritesChangeOnlyTheirOwnLine) {
  const wchar_t* f = WithFile(
      "; keep me\r\n[One]\r\nA = 1\r\n\r\n[Two]\r\nb=x\r\n; tail comment\r\n\r\n[Three]\r\n");
  lx::WriteIniFileInteger(f, L"one", L"a", 42);
  lx::WriteIniFileMicrons(f, L"Two", L"len", 1500.0);
  lx::WriteIniFileBool(f, L"Four", L"flag", true);
  lx::WriteIniFileChar(f, L"Three", L"c", L'Z');
  lx::WriteIniFileDouble(f, L"Two", L"b", -0.25);
  EXPECT_EQ(Contents(),
            "; keep me\r\n[One]\r\nA = 42\r\n\r\n[Two]\r\nb=-0.25\r\n; tail comment\r\nlen=1.5\r\n"
            "\r\n[Three]\r\nc=Z\r\n\r\n[Four]\r\nflag=1\r\n");
  lx::WriteIniFileString(f, L"One", L"A", L"two\nlines");
  EXPECT_EQ(lx::GetIniFileInteger(f, L"One", L"A", 0), 0);
  QString out;
  lx::GetIniFileString(f, L"One", L"A", L"", &out);
  EXPECT_EQ(out, QStringLiteral("two lines"));
}

TEST_F(Profile, Utf16FilesStayUtf16) {
  const auto utf16 = [](const QString& text) {
    return QByteArray("\xFF\xFE", 2) +
           QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
  };
  const wchar_t* f = WithFile(utf16("[Sec]\r\nname=\u00e9t\u00e9\r\n"));
  QString out;
  lx::GetIniFileString(f, L"SEC", L"NAME", L"", &out);
  EXPECT_EQ(out, QStringLiteral("\u00e9t\u00e9"));
  lx::WriteIniFileString(f, L"Sec", L"new", L"\u03bcm");
  EXPECT_EQ(Contents(), utf16("[Sec]\r\nname=\u00e9t\u00e9\r\nnew=\u03bcm\r\n"));
}

TEST_F(Profile, UnusableFilesGiveDefaultsAndStayUnchanged) {
  // A missing file in an existing folder is created by the first write.
  EXPECT_EQ(lx::GetIniFileInteger(Wide("new.ini").c_str(), L"S", L"k", 3, 0, 0), 3);
  lx::WriteIniFileInteger(Wide("new.ini").c_str(), L"S", L"k", 9);
  EXPECT_EQ(lx::GetIniFileInteger(Wide("new.ini").c_str(), L"S", L"k", 3, 0, 0), 9);
  // No folder: nothing is created. A folder as the profile path: nothing read or written.
  lx::WriteIniFileInteger(Wide("no/such/p.ini").c_str(), L"S", L"k", 9);
  EXPECT_FALSE(QFileInfo::exists(dir_.Path("no")));
  const std::wstring folder = dir_.Root().toStdWString();
  lx::WriteIniFileInteger(folder.c_str(), L"S", L"k", 9);
  EXPECT_EQ(lx::GetIniFileInteger(folder.c_str(), L"S", L"k", 3, 0, 0), 3);
  EXPECT_TRUE(QFileInfo(dir_.Root()).isDir());
  // Null arguments and keys that cannot be a line of the file.
  lx::WriteIniFileInteger(nullptr, L"S", L"k", 9);
  const wchar_t* f = WithFile("[S]\nk=1\n");
  for (const wchar_t* key : {L"a=b", L"", L"x\ny", L"[z"})
    lx::WriteIniFileInteger(f, L"S", key, 9);
  lx::WriteIniFileInteger(f, nullptr, L"k", 9);
  lx::WriteIniFileString(f, L"S", L"k", nullptr);
  EXPECT_EQ(Contents(), "[S]\nk=1\n");
}

TEST_F(Profile, ReadOnlyFilesAreNotReplaced) {
  const wchar_t* f = WithFile("[S]\nk=1\n");
  QFile::setPermissions(QString::fromStdWString(path_), QFile::ReadOwner);
  if (QFileInfo(QString::fromStdWString(path_)).isWritable()) GTEST_SKIP() << "running as root";
  lx::WriteIniFileInteger(f, L"S", L"k", 9);
  EXPECT_EQ(Contents(), "[S]\nk=1\n");
}

TEST_F(Profile, KeepsLatin1BytesAndAFileWithoutFinalNewline) {
  WithFile("[S]\nname=caf\xe9\nk=1");
  const QString path = QString::fromStdWString(path_);
  EXPECT_TRUE(lx::ini::WriteProfileString(path, "s", "K", "2"));
  EXPECT_EQ(Contents(), QByteArray("[S]\nname=caf\xe9\nk=2"));
  QString out;
  EXPECT_EQ(lx::ini::ReadProfileString(path, "S", "name", "", &out), 4);
  EXPECT_EQ(out, QStringLiteral("caf\u00e9"));
}

}  // namespace
