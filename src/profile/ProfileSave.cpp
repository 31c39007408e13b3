#include "profile/ProfileSave.h"

#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_IP.h"
#include "foundation/Mdl_Sub.h"
#include "foundation/Mdl_gData.h"
#include "platform/db/Recordset.h"
#include "platform/ui/Dialogs.h"
#include "platform/vb/Conversion.h"

namespace ProfileSave {

namespace {

using namespace ProfileTables;
using vb::Variant;

const QString kTo = QStringLiteral(" を ");
const QString kEnd = QStringLiteral(" に ") + ui::vbCrLf;
const QString kOn = QStringLiteral("有効");
const QString kOff = QStringLiteral("無効");

// VB's = of a stored value and a number or text: true only when both are there and equal.
bool equals(const Variant& stored, const Variant& value) { return vb::Equal(stored, value).value_or(false); }
bool differs(const Variant& stored, const Variant& value) { return !vb::Equal(stored, value).value_or(true); }

// VB's "stored <> """: a Null is not different from anything.
bool storedNotEmpty(const Variant& stored) { return !stored.IsNull() && vb::CStr(stored) != QString(); }

// The comparison that lets a Null read as empty: stored & " " against the text & " ".
bool textDiffers(const Variant& stored, const QString& text)
{
    return vb::CStr(vb::Concat(stored, Variant(QStringLiteral(" ")))) != text + QLatin1Char(' ');
}

QDateTime leaseDate(const QString& text)
{
    // a text that names no day (2005/02/31, or the "0" the date check leaves) is refused as
    // the conversion to a date refused it
    if (auto d = vb::ParseDate(text))
        return *d;
    throw vb::VbError::TypeMismatch();
}

// The assignments of one save, over the joined row of both tables.
class Save {
public:
    Save(db::Recordset& rs, Entries& entries) : m_rs(rs), m_e(entries) {}

    QString run()
    {
        driveFlags();
        codes();
        sortKey();
        fields();
        user();
        cpuFlags();
        capacities();
        return m_log;
    }

private:
    const Variant& stored(const char16_t* column) { return m_rs.Fields(column).Value(); }
    void store(const char16_t* column, const Variant& v) { m_rs.Fields(column) = v; }
    void log(const QString& line) { m_log += line; }

    void driveFlags()
    {
        for (size_t i = 0; i < DriveFlags.size(); ++i) {
            const FlagRow& row = DriveFlags[i];
            const QString caption = QString::fromUtf8(row.caption);
            const Variant& value = stored(row.column);
            const bool ticked = m_e.Chk_Drive[i];
            // unlike the CPU flags, a drive flag that was never read (Null) is set by a tick
            if (ticked && (equals(value, Variant(0)) || value.IsNull())) {
                store(row.column, Variant(1));
                log(caption + kTo + kOn + QStringLiteral(" ") + kEnd);
            } else if (!ticked && equals(value, Variant(1))) {
                store(row.column, Variant(0));
                log(caption + kTo + kOff + QStringLiteral(" ") + kEnd);
            }
        }
    }

    void codes()
    {
        for (int n = 3; n <= 5; ++n) {
            const QString& code = m_e.tbx_CmbKey[size_t(n)];
            const QString column = Mdl_gData::g.CodeTables[n].codeField;
            if (code.isEmpty() || !differs(m_rs.Fields(column).Value(), Variant(code)))
                continue;
            m_rs.Fields(column) = Variant(code);
            log(column + kTo + code + QStringLiteral(" ") + m_e.cmb_Dat[size_t(n)] + kEnd);
        }
    }

    void sortKey()
    {
        QString& box = m_e.tbx_Dat[IPAddressSortKeyField];
        const QString& address = m_e.tbx_Dat[IPAddressField];
        if (!box.isEmpty() || address.isEmpty())
            return;
        const QString hex = Mdl_IP::IpToHex8(address);
        store(ProfileFields[IPAddressSortKeyField].column, Variant(hex));
        box = hex;
        log(QStringLiteral("IP Address") + kTo + hex + kEnd);
    }

    void fields()
    {
        for (const ProfileField& f : ProfileFields) {
            const QString caption = QString::fromUtf8(f.caption);
            const QString& box = m_e.tbx_Dat[size_t(f.index)];
            const Variant& value = stored(f.column);
            if (box.isEmpty()) {
                if (storedNotEmpty(value)) {
                    store(f.column, Variant::Null());
                    log(caption + kTo + QStringLiteral("空欄") + kEnd);
                }
                continue;
            }
            if (f.index == LeasingStartDate || f.index == LeasingEndDate) {
                if (textDiffers(value, box)) {
                    store(f.column, Variant(leaseDate(box)));
                    log(caption + kTo + box + kEnd);
                }
                continue;
            }
            // no field can be set to exactly "0": such a box is passed over
            if (box != QLatin1String("0") && textDiffers(value, box)) {
                store(f.column, Variant(box));
                log(caption + kTo + box + kEnd);
            }
            // the sort key box follows the address as the row now holds it, so that a changed
            // address reaches IPAddress_16num when the loop comes to index 27
            const Variant& address = stored(ProfileFields[IPAddressField].column);
            if (storedNotEmpty(address))
                m_e.tbx_Dat[IPAddressSortKeyField] = Mdl_IP::IpToHex8(vb::CStr(address));
        }
    }

    void user()
    {
        const QString& code = m_e.tbx_UserCode;
        if (code.isEmpty() || !differs(stored(u"User_Code"), Variant(code)))
            return;
        store(u"User_Code", Variant(code));
        log(QStringLiteral("ユーザ名") + kTo + code + QStringLiteral(" ") + m_e.tbx_User + kEnd);
    }

    void cpuFlags()
    {
        for (size_t i = 0; i < CpuFeatures.size(); ++i) {
            const CpuFeature& f = CpuFeatures[i];
            const Variant& value = stored(f.column);
            const QString prefix = QStringLiteral("CPU スペック") + QString::fromUtf8(f.shortName) + kTo;
            // a flag the intake never wrote (Null) stays as it is
            if (m_e.ChkBox[i] && equals(value, Variant(0))) {
                store(f.column, Variant(1));
                log(prefix + kOn + kEnd);
            } else if (!m_e.ChkBox[i] && equals(value, Variant(1))) {
                store(f.column, Variant(0));
                log(prefix + kOff + kEnd);
            }
        }
    }

    void capacities()
    {
        for (size_t i = 0; i < CapacityRows.size(); ++i) {
            const CapacityRow& row = CapacityRows[i];
            const std::int32_t number = Mdl_Sub::DigitsToNumber(m_e.tbx_Drive[i]);
            // a Null capacity fails here, so such a computer cannot be saved
            if (number == vb::CLng(stored(row.value)))
                continue;
            store(row.value, Variant::Long(number));
            log(QString::fromUtf8(row.caption) + kTo + QString::number(number) + kEnd);
        }
    }

    db::Recordset& m_rs;
    Entries& m_e;
    QString m_log;
};

} // namespace

Result Mnu_Update(std::int16_t key, Entries& entries)
{
    Result result;
    db::Recordset rs;
    try {
        rs.Open(QStringLiteral("SELECT tbl_Pclist.*, tbl_Computer_List.* FROM tbl_Pclist, tbl_Computer_List  WHERE "
                               "(((tbl_Pclist.MainKey = tbl_Computer_List.MainKey)) AND ((tbl_Computer_List.MainKey)= ")
                    + QString::number(key) + QStringLiteral("));"),
                Mdl_gData::DbConnection(), db::adOpenStatic, db::adLockOptimistic);
        if (rs.Eof()) {
            rs.Close();
            result.outcome = Outcome::NoRecord;
            return result;
        }
        result.changeLog = Save(rs, entries).run();
        if (result.changeLog.isEmpty()) {
            rs.Close();
            return result;
        }
        rs.Update();
        rs.Close();
        result.outcome = Outcome::Saved;
        ui::MsgBox(result.changeLog + QStringLiteral("変更しました。"));
        return result;
    } catch (const vb::VbError& e) {
        Mdl_Access_mdb::StandardErrorBox(e);
        if (rs.State() == db::adStateOpen)
            rs.CancelUpdate();
        rs.CloseIfOpen();
        result.outcome = Outcome::Failed;
        return result;
    }
}

} // namespace ProfileSave
