#include "session/config_word.h"

#include <exception>

#include "errorlog/error_log.h"
#include "settings/config_row.h"
#include "settings/database.h"

namespace lp {

void ConfigWord(Session& session) {
  Database db(session.databasePath);
  try {
    OpenDatabase(db);
    if (db.DbRs.State() == adStateOpen) db.DbRs.Close();
    db.DbRs.Open("select * from  config  order by id asc", db.DbConn);
    if (db.DbRs.RecordCount() != 0) {
      for (; !db.DbRs.Eof(); db.DbRs.MoveNext())
        ApplyConfigRow(db.DbRs, session.config, session.WordApp);
    }
    CloseDatabase(db);
  } catch (const std::exception& e) {
    ReportError(session.prompt, ErrorLabel(u"ConfigWord"), e);
  }
}

}  // namespace lp
