#pragma once
// The tables and default rows of a new settings database (schema.sql, built in).

namespace lp {

const char* DefaultSchemaSql();

}  // namespace lp
