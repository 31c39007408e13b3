#!/usr/bin/env bash
# A small demo ledger for looking at the computer profile: two generated computers of 300
# inventory lines, the two Japanese and English fixtures, masters assigned to them, and a DB.ini
# whose view lists them by key. Run Fenwold from DIR (a copy of the program beside the ledger).
#
#   bench/profile/make_demo.sh BUILD_DIR DIR
set -euo pipefail

build=$(realpath "$1")
dir=$2
here=$(cd "$(dirname "$0")" && pwd)
fixtures=$here/../../tests/data/inventory

mkdir -p "$dir"
cd "$dir"
rm -f pcdb.mdb DB.ini
"$build/src/app/fenwold-admin" new-ledger pcdb.mdb
"$build/bench/intake/bench_intake_generate" inventory 2 >/dev/null
"$build/src/app/fenwold-admin" read --ledger pcdb.mdb inventory/pc00001.csv "$fixtures/ja_pc01.csv" inventory/pc00002.csv
"$build/src/app/fenwold-admin" read --english --ledger pcdb.mdb "$fixtures/en_pc02.csv"

sqlite3 pcdb.mdb <<'SQL'
INSERT INTO tbl_Section VALUES (1, '総務部', '', '0'), (2, '営業部', '', '0');
INSERT INTO tbl_Division VALUES (1, '庶務課', '', '0'), (2, '第一営業課', '', '0');
INSERT INTO tbl_Location VALUES (1, '本社3F', '', '0'), (2, '大阪支店', '', '0');
INSERT INTO tbl_Manufacturer VALUES (1, 'NEC', '', '0'), (2, 'Dell', '', '0');
INSERT INTO tbl_Model VALUES (1, 'PC-MY26XEZ7', '', '0'), (2, 'OptiPlex GX270', '', '0');
INSERT INTO tbl_User VALUES (1, '山田 太郎', '', '0', 'やまだ たろう', '1001', 'yamada', 'pw', 1, 1),
                            (2, '鈴木 一郎', '', '0', 'すずき いちろう', '2001', 'suzuki', 'pw', 2, 2),
                            (3, '青木 花子', '', '0', 'あおき はなこ', '1002', 'aoki', 'pw', 1, 1);
UPDATE tbl_Computer_List SET Location_Code = 1, User_Code = 1, Manufacturer_Code = 1, Model_Code = 1,
  Asset_Code = 'リース', Selling_Agent = '東都システム', Leasing_Company = '日本リース', Leasing_Contract_Number = 'L-2005-0412',
  Leasing_StartDate = '2005/04/01', Leasing_EndDate = '2010/03/31', Leasing_Monthly_Amount = 4800,
  Maintenance_Agent = '東都システム', Maintenance_Contract_Number = 'M-0412', Comment = '窓際の席'
  WHERE MainKey IN (1, 2);
UPDATE tbl_Computer_List SET Location_Code = 2, User_Code = 2, Manufacturer_Code = 2, Model_Code = 2 WHERE MainKey IN (3, 4);
UPDATE tbl_Pclist SET Floppydisk_Drive = 1, Cdrom_Drive = 1, DVD_Drive = 0, Cdr_Drive = 1, Combo_Drive = 0, Mo_Drive = 0
  WHERE MainKey > 0;
SQL

# view 0: place, user, section, computer, address, maker, model, OS, by key
printf '%s\r\n' '[Main]' 'SectionNumber=0' 'SectionName0=demo' '[0]' 'OptDel=0' 'SelectNumber=1' \
  'KeyName0=tbl_Computer_List.MainKey' 'KeyCaption0=MainKey' 'KeyASCDESC0=ASC' 'MSFlexGrit_SelectNum=8' \
  'MSFlexGrit_Select1=1' 'MSFlexGrit_Select2=4' 'MSFlexGrit_Select3=2' 'MSFlexGrit_Select4=8' \
  'MSFlexGrit_Select5=10' 'MSFlexGrit_Select6=13' 'MSFlexGrit_Select7=14' 'MSFlexGrit_Select8=17' >DB.ini
cp "$build/src/app/fenwold" .
echo "demo ledger in $dir"
