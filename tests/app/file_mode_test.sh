#!/usr/bin/env bash
# file_mode_test.sh CHECK LUMENPAD: the teacher's file in file mode, run
# after run: results add up, saves respect the file, what may not be edited
# is refused before any work, and the command line says what went wrong.
set -uo pipefail
check="$1" lp="$2"
here="$(cd "$(dirname "$0")" && pwd)"
. "$here/common.sh"
skip() { echo "SKIP: $*"; exit 77; }
dump() { python3 "$here/docx_dump.py" "$@"; }
factor() { run factoring --doc "$1" --set "Text1=$2" --click Command1 --click cmdInsert --click Command2; }
# expect STATUS PATTERN COMMAND...: the run's status, and its messages holding the pattern.
expect() {
  local status="$1" pattern="$2" out got
  shift 2
  out="$("$@" 2>&1)"
  got=$?
  [[ $got == "$status" ]] || fail "status $got, not $status, for: $* ($out)"
  [[ "$out" == *$pattern* ]] || fail "no '$pattern' for: $*: $out"
}
# As a user other than root, so that permissions count.
as_user() {
  if [[ $(id -u) != 0 ]]; then "$@"; return; fi
  setpriv --reuid=65534 --regid=65534 --clear-groups env HOME="$work" XDG_DATA_HOME="$work/data" "$@"
}
needs_user() {
  [[ $(id -u) != 0 ]] && return
  command -v setpriv > /dev/null || skip "running as root without setpriv: the permission cases need another user"
  [[ -x "$lp" ]] && as_user test -x "$lp" || skip "the program is not reachable for uid 65534"
  chown 65534:65534 "$work"
}

case "$check" in
consecutive)
  # Four runs on one file, no --select between them: each adds behind the last.
  run gs --doc f.docx --set "txtGS=a^2+b^2=c^2" --click cmdOK
  run gs --doc f.docx --set "txtGS=x/y" --click cmdOK
  factor f.docx 12
  run mhgs --doc f.docx
  text="$(dump text f.docx)"
  # mhgs prints the signs of what the runs typed: the equals sign turns full-width.
  [[ "$text" == *'EQ a'*'EQ \F(x,y)'*' 12＝  2'*'· 3' ]] || fail "a result was lost or moved: $text"
  ;;
command_line)
  expect 0 "用法：lumenpad" "$lp" --help
  expect 0 "退出状态" "$lp" -h
  expect 2 "--selct" "$lp" gs --selct x --doc t.docx
  expect 2 "typo.dcox" "$lp" test --doc typo.dcox
  expect 2 "没有对话框" "$lp" test --doc t.docx --click cmdOK
  expect 2 "--set" "$lp" mhgs --doc t.docx --set a=1
  [[ -z "$(ls)" ]] || fail "a refused command line wrote: $(ls)"
  expect 4 "ActiveX 部件不能创建对象" run test
  ;;
permissions)
  needs_user
  as_user "$lp" test --doc t.docx --config "$db" || fail "no new document"
  as_user "$lp" factoring --doc t.docx --set Text1=6 --click Command1 --click cmdInsert --config "$db"
  chmod 600 t.docx
  as_user "$lp" factoring --doc t.docx --set Text1=10 --click Command1 --click cmdInsert --config "$db"
  [[ "$(stat -c %a t.docx)" == 600 ]] || fail "mode $(stat -c %a t.docx) after a save"
  [[ "$(dump text t.docx)" == *' 6=  2· 3'*' 10=  2· 5'* ]] || fail "text: $(dump text t.docx)"
  ln -s t.docx link.docx
  as_user "$lp" factoring --doc link.docx --set Text1=9 --click Command1 --click cmdInsert --config "$db"
  [[ -L link.docx && "$(dump text t.docx)" == *' 9=  3'* ]] || fail "the link was not followed"
  cp t.docx before.docx
  chmod 444 t.docx
  expect 2 "文档是只读的：" as_user "$lp" factoring --doc t.docx --set Text1=4 --click Command1 --config "$db"
  cmp -s t.docx before.docx || fail "a read-only file changed"
  mkdir locked && cp before.docx locked/w.docx && chown -R 65534:65534 locked && chmod 555 locked
  as_user "$lp" factoring --doc locked/w.docx --set Text1=25 --click Command1 --click cmdInsert \
    --config "$db" || fail "a writable file in a read-only folder was not saved"
  [[ "$(dump text locked/w.docx)" == *' 25=  5'* ]] || fail "in place: $(dump text locked/w.docx)"
  [[ "$(ls -A locked)" == w.docx ]] || fail "left beside it: $(ls -A locked)"
  ;;
locks)
  factor t.docx 6
  cp t.docx before.docx
  for owner in '~$t.docx' '.~lock.t.docx#'; do
    echo "someone,host" > "$owner"
    expect 2 "文档正被另一个程序打开" run factoring --doc t.docx --set Text1=4 --click Command1 --click cmdInsert
    rm "$owner"
  done
  python3 - t.docx p.docx << 'PY'
import sys, zipfile
src, dst = sys.argv[1], sys.argv[2]
with zipfile.ZipFile(src) as zin, zipfile.ZipFile(dst, "w", zipfile.ZIP_DEFLATED) as zout:
    for item in zin.infolist():
        data = zin.read(item.filename)
        if item.filename == "word/settings.xml":
            data = data.replace(b"</w:settings>",
                b'<w:documentProtection w:edit="readOnly" w:enforcement="1"/></w:settings>')
        zout.writestr(item, data)
PY
  cp p.docx p_before.docx
  expect 2 "此修改不被允许，因为选定区域已被锁定。" run factoring --doc p.docx --set Text1=4 --click Command1 --click cmdInsert
  cmp -s p.docx p_before.docx || fail "a protected document changed"
  cmp -s t.docx before.docx || fail "a document held open elsewhere changed"
  # Six runs started together leave six answers.
  for n in 11 13 17 19 23 29; do factor t.docx "$n" & done
  wait
  for n in 11 13 17 19 23 29; do
    [[ "$(dump text t.docx)" == *" $n=  $n"* ]] || fail "the answer for $n is lost: $(dump text t.docx)"
  done
  ;;
school_template)
  run test --doc t.docx
  python3 - t.docx s.docx << 'PY'
import sys, zipfile
src, dst = sys.argv[1], sys.argv[2]
rel = (b'<Relationship Id="rIdT" Type="http://schemas.openxmlformats.org/officeDocument/2006/'
       b'relationships/attachedTemplate" Target="file:///D:/%E5%AD%A6%E6%A0%A1%E8%AF%95%E5%8D%B7.dotm" '
       b'TargetMode="External"/></Relationships>')
with zipfile.ZipFile(src) as zin, zipfile.ZipFile(dst, "w", zipfile.ZIP_DEFLATED) as zout:
    for item in zin.infolist():
        data = zin.read(item.filename)
        if item.filename == "word/settings.xml":
            data = data.replace(b"</w:settings>", b'<w:attachedTemplate r:id="rIdT"/></w:settings>')
            if b'xmlns:r=' not in data:
                data = data.replace(b"<w:settings ", b'<w:settings xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships" ', 1)
        zout.writestr(item, data)
    zout.writestr("word/_rels/settings.xml.rels",
        b'<?xml version="1.0" encoding="UTF-8" standalone="yes"?><Relationships '
        b'xmlns="http://schemas.openxmlformats.org/package/2006/relationships">' + rel)
PY
  cp s.docx before.docx
  run test --doc s.docx
  cmp -s s.docx before.docx || fail "test changed a document with its own template"
  [[ "$(unzip -p s.docx word/_rels/settings.xml.rels)" == *'%E5%AD%A6%E6%A0%A1%E8%AF%95%E5%8D%B7.dotm'* ]] ||
    fail "the school's template was replaced"
  ;;
settings_file)
  : > empty.db
  expect 0 "" "$lp" test --doc t.docx --config empty.db
  [[ "$(sqlite3 empty.db "select intvalue from config where cName = 'intK'")" == 5 ]] ||
    fail "an empty settings file did not get the defaults"
  # A read-only settings file is read where it is.
  run test --doc t.docx
  sqlite3 "$db" "update config set blvalue = 0 where cName = 'EmbellishFormula'"
  chmod 444 "$db"
  XDG_DATA_HOME="$work/data" run gs --doc e.docx --set "txtGS=x^2/2" --click cmdOK
  [[ "$(dump text e.docx)" == *'{ EQ \F(x\S(2),2) }'* ]] || fail "the stored option was ignored: $(dump text e.docx)"
  ;;
overflow)
  # What a click typed stays when a later click of the same run fails.
  for input in 1e400 -1e400 "$(printf '9%.0s' {1..400})" "" "１２" "((("; do
    rm -f t.docx
    run factoring --doc t.docx --set Text1=6 --click Command1 --click cmdInsert \
      --set "Text1=$input" --click Command1 --click cmdInsert --click Command2 > /dev/null 2>&1
    status=$?
    [[ $status == 0 ]] || fail "status $status for '$input'"
    [[ "$(dump text t.docx)" == *' 6=  2· 3'* ]] || fail "the earlier answer is lost for '$input'"
  done
  ;;
*)
  fail "unknown check $check"
  ;;
esac
echo "ok: $check"
