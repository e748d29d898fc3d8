-- The settings database as a fresh installation gets it. Booleans are stored
-- as the program reads them: -1 is True, 0 is False.

CREATE TABLE config (
  id INTEGER PRIMARY KEY,
  cName TEXT NOT NULL,
  blvalue INTEGER,
  intvalue INTEGER
);

INSERT INTO config (id, cName, blvalue, intvalue) VALUES
  (1, 'EmbedTrueTypeFonts', 0, NULL),
  (2, 'AutoCreateNewDrawings', 0, NULL),
  (3, 'CorrectSentenceCaps', 0, NULL),
  (4, 'AutoFormatMatchParentheses', 0, NULL),
  (5, 'EmbellishFormula', -1, NULL),
  (6, 'blMathType', 0, NULL),
  (7, 'blFS', 0, NULL),
  (8, 'blPLZH', 0, NULL),
  (9, 'intK', NULL, 5),
  (10, 'intKD', NULL, 8),
  (11, 'blYkdLeft', 0, NULL),
  (12, 'blYtxtLeft', -1, NULL),
  (13, 'blXkdUp', 0, NULL),
  (14, 'blXtxtUp', 0, NULL),
  (15, 'blAutoKD', -1, NULL),
  (16, 'blInlineShape', 0, NULL);

-- One slot per dialog that remembers its state between runs. Its rows are
-- added whenever the store opens (AddMissingRecordSlots), so that a file made
-- before a slot existed gains it.
CREATE TABLE record (
  id INTEGER PRIMARY KEY,
  Date TEXT,
  Time TEXT,
  Data TEXT
);

-- Key bindings: Name is the macro of the template, Value the keys.
CREATE TABLE hotkey (
  id INTEGER PRIMARY KEY,
  Name TEXT,
  Value TEXT
);

INSERT INTO hotkey (id, Name, Value) VALUES (1, 'gs', 'Ctrl+Alt+F');

-- The figure gallery: groups (big) and the documents in them (small).
CREATE TABLE big (
  id INTEGER PRIMARY KEY,
  Name TEXT,
  content BLOB
);

CREATE TABLE small (
  Id INTEGER PRIMARY KEY,
  Name TEXT,
  big INTEGER
);
