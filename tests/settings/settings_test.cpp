#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>
#include <fstream>

#include "runtime/error.h"
#include "runtime/recording_prompt.h"
#include "session/config_word.h"
#include "settings/config_row.h"
#include "settings/database.h"
#include "settings/file_fields.h"
#include "settings/record_slots.h"
#include "settings/settings_store.h"
#include "word/fake/fake_word.h"

namespace fs = std::filesystem;

namespace lp {
namespace {

class SettingsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    dir_ = fs::temp_directory_path() /
           ("lp_settings_" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) +
            "_" + ::testing::UnitTest::GetInstance()->current_test_info()->name());
    fs::remove_all(dir_);
    fs::create_directories(dir_);
    path_ = (dir_ / "config.db").string();
  }
  void TearDown() override { fs::remove_all(dir_); }

  // Runs SQL on the file directly, behind the program's back.
  void Exec(const std::string& sql) {
    sqlite3* db = nullptr;
    ASSERT_EQ(sqlite3_open(path_.c_str(), &db), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK) << sql;
    sqlite3_close(db);
  }

  fs::path dir_;
  std::string path_;
};

TEST_F(SettingsTest, NewDatabaseHoldsTheDefaults) {
  ConfigGlobals g = ReadConfigGlobals(path_);
  EXPECT_TRUE(fs::exists(path_));
  EXPECT_EQ(g.intK, 5);
  EXPECT_EQ(g.intKD, 8);
  EXPECT_EQ(g.blAutoKD, -1);
  EXPECT_EQ(g.EmbellishFormula, -1);
  EXPECT_EQ(g.blMathType, 0);
  EXPECT_EQ(g.blFS, 0);
  EXPECT_EQ(g.blInlineShape, 0);
  for (int id = 1; id <= 10; ++id) EXPECT_EQ(ReadRecordSlot(path_, id), u"") << id;
}

TEST_F(SettingsTest, RecordSlotSurvivesAndDeletionRestoresDefaults) {
  WriteRecordSlot(path_, 9, u"1@@-3@@开@@x");
  EXPECT_EQ(ReadRecordSlot(path_, 9), u"1@@-3@@开@@x");
  EXPECT_EQ(ReadRecordSlot(path_, 8), u"");

  Database db(path_);
  OpenDatabase(db);
  db.DbRs.Open(RecordWriteStatement(9), db.DbConn);
  EXPECT_NE(CStrValue(db.DbRs.Value("date")), u"");
  EXPECT_EQ(CStrValue(db.DbRs.Value("TIME")).size(), 8u);
  CloseDatabase(db);

  fs::remove(path_);
  EXPECT_EQ(ReadRecordSlot(path_, 9), u"");
}

// A file made before the later dialogs existed gains their empty slots and
// keeps what its own slots hold.
TEST_F(SettingsTest, AnOlderFileGainsTheSlotsItLacks) {
  ReadConfigGlobals(path_);
  Exec("delete from record where id > 10; update record set Data='kept' where id=4;");
  EXPECT_EQ(ReadRecordSlot(path_, 11), u"");
  WriteRecordSlot(path_, kRecordSlotCount, u"1@@2");
  EXPECT_EQ(ReadRecordSlot(path_, kRecordSlotCount), u"1@@2");
  EXPECT_EQ(ReadRecordSlot(path_, 4), u"kept");
  Database db(path_);
  OpenDatabase(db);
  db.DbRs.Open("select count(*) as n from record", db.DbConn);
  EXPECT_EQ(CStrValue(db.DbRs.Value("n")), u"16");
  CloseDatabase(db);
}

TEST_F(SettingsTest, StatementsKeepTheirBlanks) {
  EXPECT_EQ(RecordReadStatement(3), "select data from  record  where id=3");
  EXPECT_EQ(RecordReadStatement(2), "select data from  record where id =2");
  EXPECT_EQ(RecordWriteStatement(10), "select * from  record where id=10");
}

TEST_F(SettingsTest, ConfigRowsFollowTheirRules) {
  ReadConfigGlobals(path_);
  Exec(
      "update config set intvalue=0 where cName='intK';"
      "update config set intvalue=-3 where cName='intKD';"
      "update config set blvalue=NULL where cName in ('blAutoKD','blXkdUp');"
      "insert into config (id, cName, blvalue) values (0, 'NoSuchKey', NULL);");
  ConfigGlobals g = ReadConfigGlobals(path_);
  EXPECT_EQ(g.intK, 5);
  EXPECT_EQ(g.intKD, -3);
  EXPECT_EQ(g.blAutoKD, -1);
  EXPECT_EQ(g.blXkdUp, 0);

  // A Null where a flag can't take one stops the reading at that row.
  Exec(
      "update config set blvalue=NULL where cName='blMathType';"
      "update config set blvalue=-1 where cName='blFS';");
  g = ReadConfigGlobals(path_);
  EXPECT_EQ(g.EmbellishFormula, -1);
  EXPECT_EQ(g.blFS, 0);
  EXPECT_EQ(g.intK, 0);
}

TEST_F(SettingsTest, ConfigWordReportsAFailureAndGoesOn) {
  RecordingPrompt prompt;
  Session session(prompt);
  session.databasePath = path_;
  ReadConfigGlobals(path_);
  Exec("update config set blvalue=NULL where cName='blPLZH';");
  ConfigWord(session);
  ASSERT_EQ(prompt.Shown().size(), 1u);
  EXPECT_EQ(prompt.Shown()[0].prompt, u"无效使用 Null\r\nConfigWord-->line 0");
  EXPECT_EQ(prompt.Shown()[0].title, u"错误号: 94");
  EXPECT_EQ(session.config.blFS, 0);
  EXPECT_EQ(session.config.intK, 0);

  prompt.Clear();
  std::ofstream(path_, std::ios::trunc) << "this is not a database at all, not even a little";
  ConfigWord(session);
  ASSERT_EQ(prompt.Shown().size(), 1u);
  EXPECT_EQ(prompt.Shown()[0].prompt.substr(0, 13), u"设置文件已损坏，不是数据库");
  EXPECT_NE(prompt.Shown()[0].prompt.find(u"ConfigWord-->line 0"), std::u16string::npos);
}

TEST_F(SettingsTest, ConfigWordSetsTheWordOptions) {
  ReadConfigGlobals(path_);
  Exec("update config set blvalue=-1 where cName in ('EmbedTrueTypeFonts','CorrectSentenceCaps');");
  word::fake::FakeWord word;
  RecordingPrompt prompt;
  Session session(word, prompt);
  session.databasePath = path_;
  ConfigWord(session);
  EXPECT_TRUE(prompt.Shown().empty());
  EXPECT_EQ(
      word::fake::CallDiff(
          word.Calls(),
          {"ActiveDocument.EmbedTrueTypeFonts=True", "ActiveDocument.SaveSubsetFonts=True",
           "ActiveDocument.DoNotEmbedSystemFonts=True", "Options.AutoCreateNewDrawings=False",
           "AutoCorrect.CorrectSentenceCaps=True", "Options.AutoFormatMatchParentheses=False"}),
      "");
  EXPECT_EQ(session.config.intKD, 8);
}

TEST_F(SettingsTest, EmptyConfigChangesNothing) {
  ReadConfigGlobals(path_);
  Exec("delete from config;");
  RecordingPrompt prompt;
  Session session(prompt);
  session.databasePath = path_;
  ConfigWord(session);
  EXPECT_TRUE(prompt.Shown().empty());
  EXPECT_EQ(session.config.intK, 0);
}

TEST_F(SettingsTest, RecordsetAddsAndUpdatesRows) {
  Database db(path_);
  OpenDatabase(db);
  db.DbRs.Open("select * from  big  where id >2 order by id asc", db.DbConn);
  EXPECT_EQ(db.DbRs.RecordCount(), 0);
  EXPECT_TRUE(db.DbRs.Eof());
  db.DbRs.AddNew();
  db.DbRs.SetValue("id", int64_t{3});
  db.DbRs.SetValue("name", std::u16string(u"函数"));
  db.DbRs.Update();
  db.DbRs.Close();
  db.DbRs.Open("select * from big where id=3", db.DbConn);
  EXPECT_EQ(CStrValue(db.DbRs.Value("Name")), u"函数");
  EXPECT_THROW(db.DbRs.Value("nothing"), RuntimeError);
  CloseDatabase(db);
}

TEST_F(SettingsTest, FilesGoInAndOutOfBinaryFields) {
  std::string in = (dir_ / "in.bin").string(), out = (dir_ / "out.bin").string();
  std::ofstream(in, std::ios::binary) << std::string("PK\0\x01\xff", 5);
  RecordingPrompt prompt;
  Database db(path_);
  OpenDatabase(db);
  db.DbRs.Open("select * from big where id=1", db.DbConn);
  db.DbRs.AddNew();
  db.DbRs.SetValue("id", int64_t{1});
  EXPECT_TRUE(SaveFileToField(in, db.DbRs.Fields("content"), prompt));
  EXPECT_TRUE(LoadFieldToFile(db.DbRs.Fields("content"), out, prompt));
  std::ifstream back(out, std::ios::binary);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(back), {}), std::string("PK\0\x01\xff", 5));
  EXPECT_TRUE(prompt.Shown().empty());

  EXPECT_FALSE(SaveFileToField((dir_ / "missing").string(), db.DbRs.Fields("content"), prompt));
  db.DbRs.SetValue("content", DbValue{});
  EXPECT_FALSE(LoadFieldToFile(db.DbRs.Fields("content"), out, prompt));
  ASSERT_EQ(prompt.Shown().size(), 2u);
  EXPECT_EQ(prompt.Shown()[0].title, u"错误！文件上传到数据库不成功！");
  EXPECT_EQ(prompt.Shown()[0].style, 64);
  EXPECT_EQ(prompt.Shown()[1].title, u"错误！文件下载到本地不成功！");
}

TEST_F(SettingsTest, DatabasePathPrefersTheProgramFolder) {
  EXPECT_EQ(DatabasePath("/x/y.db", dir_.string()), "/x/y.db");
  EXPECT_EQ(DatabasePath("", dir_.string()), (dir_ / "config.db").string());
  setenv("XDG_DATA_HOME", dir_.c_str(), 1);
  EXPECT_EQ(DatabasePath("", "/no/such/folder"), (dir_ / "lumenpad" / "config.db").string());
}

// A settings file that cannot be written is read where it is; the dialogs'
// slots then go to the teacher's own copy, made from it.
TEST_F(SettingsTest, ReadOnlyFileIsReadInPlaceAndWritesGoToACopyOfIt) {
  ReadConfigGlobals(path_);
  Exec("update config set blvalue=-1 where cName='blFS'; update record set Data='old' where id=3;");
  fs::permissions(path_, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
  setenv("XDG_DATA_HOME", (dir_ / "home").c_str(), 1);
  EXPECT_EQ(ReadConfigGlobals(path_).blFS, -1);
  EXPECT_EQ(ReadRecordSlot(path_, 3), u"old");
  WriteRecordSlot(path_, 4, u"new");
  const std::string copy = (dir_ / "home" / "lumenpad" / "config.db").string();
  EXPECT_EQ(ReadConfigGlobals(copy).blFS, -1);  // a copy of the file, not of the defaults
  EXPECT_EQ(ReadRecordSlot(path_, 4), u"new");
  EXPECT_EQ(ReadRecordSlot(path_, 3), u"old");
  fs::permissions(path_, fs::perms::owner_write, fs::perm_options::add);
  path_ = copy;
  Exec("select 1");  // the copy can be written
}

TEST_F(SettingsTest, AnEmptyFileIsAMissingOne) {
  std::ofstream(path_).close();
  EXPECT_EQ(ReadConfigGlobals(path_).intK, 5);
  EXPECT_EQ(ReadRecordSlot(path_, 1), u"");
}

}  // namespace
}  // namespace lp
