#include "gallery/gallery_store.h"

#include <algorithm>

#include "runtime/text.h"
#include "settings/database.h"
#include "settings/file_fields.h"

namespace lp::gallery {
namespace {

constexpr size_t kMaxNameLength = 50;

std::string BigRow(long id) {
  return "select * from big where id=" + std::to_string(id);
}

std::string SmallRows(long id) {
  return "select * from small where big =" + std::to_string(id) + " order by id asc";
}

long IdOf(const DbValue& value) {
  const auto* id = std::get_if<int64_t>(&value);
  return id ? static_cast<long>(*id) : 0;
}

// Runs `use` with the database open, closing it whatever happens.
template <class Use>
auto WithDatabase(const std::string& dbPath, Use use) {
  Database db(dbPath);
  OpenDatabase(db);
  struct Closer {
    Database& db;
    ~Closer() { CloseDatabase(db); }
  } closer{db};
  return use(db);
}

}  // namespace

std::vector<GalleryEntry> ListEntries(const std::string& dbPath) {
  return WithDatabase(dbPath, [](Database& db) {
    std::vector<GalleryEntry> entries;
    db.DbRs.Open("select * from  big  where id >2 order by id asc", db.DbConn);
    for (; !db.DbRs.Eof(); db.DbRs.MoveNext())
      entries.push_back({IdOf(db.DbRs.Value("id")), CStrValue(db.DbRs.Value("Name")), {}});
    db.DbRs.Close();
    for (GalleryEntry& entry : entries) {
      db.DbRs.Open(SmallRows(entry.id), db.DbConn);
      for (; !db.DbRs.Eof(); db.DbRs.MoveNext())
        entry.shapeNames.push_back(CStrValue(db.DbRs.Value("Name")));
      db.DbRs.Close();
    }
    return entries;
  });
}

bool LoadEntryFile(const std::string& dbPath, long id, const std::string& path, Prompt& prompt) {
  return WithDatabase(dbPath, [&](Database& db) {
    db.DbRs.Open(BigRow(id), db.DbConn);
    if (db.DbRs.Eof()) {
      prompt.MsgBox(u"图库中没有这个图形了！");
      return false;
    }
    return LoadFieldToFile(db.DbRs.Fields("content"), path, prompt);
  });
}

std::optional<long> AddEntry(const std::string& dbPath, const std::u16string& name,
                             const std::string& path, const std::vector<std::u16string>& shapeNames,
                             Prompt& prompt) {
  return WithDatabase(dbPath, [&](Database& db) -> std::optional<long> {
    // The gallery's ids start above 2: the rows below belong to nothing here.
    db.DbRs.Open("select * from  big  order by id asc", db.DbConn);
    long id = 2;
    for (; !db.DbRs.Eof(); db.DbRs.MoveNext()) id = std::max(id, IdOf(db.DbRs.Value("id")));
    ++id;
    db.DbRs.AddNew();
    db.DbRs.SetValue("id", int64_t{id});
    db.DbRs.SetValue("Name", name);
    if (!SaveFileToField(path, db.DbRs.Fields("content"), prompt)) return std::nullopt;
    db.DbRs.Update();
    db.DbRs.Open(SmallRows(id), db.DbConn);
    for (const std::u16string& shape : shapeNames) {
      db.DbRs.AddNew();
      db.DbRs.SetValue("Name", shape);
      db.DbRs.SetValue("big", int64_t{id});
      db.DbRs.Update();
    }
    return id;
  });
}

void RenameEntry(const std::string& dbPath, long id, const std::u16string& name) {
  WithDatabase(dbPath, [&](Database& db) {
    db.DbRs.Open(BigRow(id), db.DbConn);
    if (db.DbRs.Eof()) return;
    db.DbRs.SetValue("Name", name);
    db.DbRs.Update();
  });
}

void DeleteEntry(const std::string& dbPath, long id) {
  WithDatabase(dbPath, [&](Database& db) {
    db.DbRs.Open(SmallRows(id), db.DbConn);
    for (; !db.DbRs.Eof(); db.DbRs.MoveNext()) db.DbRs.Delete();
    db.DbRs.Open(BigRow(id), db.DbConn);
    if (!db.DbRs.Eof()) db.DbRs.Delete();
  });
}

std::u16string CheckEntryName(const std::u16string& name) {
  const std::u16string trimmed = Trim(name);
  if (trimmed.empty()) return u"图形的名称不能为空！";
  if (trimmed.size() > kMaxNameLength) return u"图形的名称太长了，最多 50 个字。";
  return {};
}

}  // namespace lp::gallery
