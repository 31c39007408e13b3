#include "assetlist/ListQuery.h"

#include "foundation/Mdl_gData.h"
#include "foundation/mdl_ini.h"
#include "platform/vb/Conversion.h"

using namespace Mdl_gData;

// The statement is built piece by piece and kept exactly so, doubled blanks included: the pieces
// are the system's own and a saved view's sort keys are pasted into it as they stand. All joins
// stand in the WHERE clause, so a computer whose code has no master row is not listed.
void gSetSQLVal()
{
    QString s;
    s += QStringLiteral("SELECT ");
    s += QStringLiteral("tbl_Pclist.*, ");
    s += QStringLiteral("tbl_Computer_List.*, ");
    s += QStringLiteral("tbl_Location.Location_Name, ");
    s += QStringLiteral("tbl_Location.Available_flug, ");
    s += QStringLiteral("tbl_User.User_Name, ");
    s += QStringLiteral("tbl_User.User_Comment, ");
    s += QStringLiteral("tbl_User.Available_flug, ");
    s += QStringLiteral("tbl_User.kana, ");
    s += QStringLiteral("tbl_User.Employee_SerialNumber, ");
    s += QStringLiteral("tbl_User.Acount_Name, ");
    s += QStringLiteral("tbl_User.logon_Password, ");
    s += QStringLiteral("tbl_Section.Section_Name, ");
    s += QStringLiteral("tbl_Section.Available_flug, ");
    s += QStringLiteral("tbl_Division.Division_Name, ");
    s += QStringLiteral("tbl_Division.Available_flug, ");
    s += QStringLiteral("tbl_Manufacturer.Manufacturer_Name, ");
    s += QStringLiteral("tbl_Manufacturer.Available_flug, ");
    s += QStringLiteral("tbl_Model.Model_Name, ");
    s += QStringLiteral("tbl_Model.Available_flug ");

    s += QStringLiteral("FROM tbl_Computer_List, ");
    s += QStringLiteral("tbl_Pclist, ");
    s += QStringLiteral("tbl_User, ");
    s += QStringLiteral("tbl_Section, ");
    s += QStringLiteral("tbl_Location, ");
    s += QStringLiteral("tbl_Division, ");
    s += QStringLiteral("tbl_Manufacturer, ");
    s += QStringLiteral("tbl_Model");

    s += QStringLiteral(" WHERE (");
    s += QStringLiteral("((tbl_Computer_List.Location_Code)=([tbl_Location].[Location_Code]))");
    s += QStringLiteral(" AND ");
    s += QStringLiteral("((tbl_Computer_List.User_Code)=([tbl_User].[User_Code]))");
    s += QStringLiteral(" AND ");
    s += QStringLiteral("((tbl_User.Section_Code)=([tbl_Section].[Section_Code]))");
    s += QStringLiteral(" AND ");
    s += QStringLiteral("((tbl_User.Division_Code)=([tbl_Division].[Division_Code]))");
    s += QStringLiteral(" AND ");
    s += QStringLiteral("((tbl_Computer_List.Manufacturer_Code)=([tbl_Manufacturer].[Manufacturer_Code]))");
    s += QStringLiteral(" AND ");
    s += QStringLiteral("((tbl_Computer_List.Model_Code)=([tbl_Model].[Model_Code]))");
    s += QStringLiteral(" AND ");
    s += QStringLiteral("((tbl_Pclist.MainKey) = (tbl_Computer_List.MainKey))");
    s += QStringLiteral(") ");

    // installed or retired computers; any other value lists both
    if (g.OptDel == 0)
        s += QStringLiteral(" AND (tbl_Computer_List.Deleted_Flug = 0) ");
    else if (g.OptDel == 1)
        s += QStringLiteral(" AND (tbl_Computer_List.Deleted_Flug = 1) ");

    if (g.SelectNumber >= 1 && g.SelectNumber <= 3) {
        s += QStringLiteral(" ORDER BY ");
        for (int i = 0; i < g.SelectNumber; ++i) {
            if (i > 0)
                s += QStringLiteral(",");
            s += g.SortKeyName[i];
            s += QStringLiteral(" ");
            s += g.SortKeyDirection[i];
        }
    }
    // A count of sort keys outside 0 to 3 leaves the statement without its closing ";".
    if (g.SelectNumber >= 0 && g.SelectNumber <= 3)
        s += QStringLiteral(";");

    g.ListSql = s;
}

std::int16_t SavedSectionNumber()
{
    const QString section = mdl_ini::IniRead(QStringLiteral("Main"), QStringLiteral("SectionNumber"));
    return section.isEmpty() ? std::int16_t(0) : vb::CInt(section);
}

void LoadView()
{
    mdl_ini::LoadViewSettings();
    gSetSQLVal();
}
