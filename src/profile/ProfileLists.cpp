#include "profile/ProfileLists.h"

#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_gData.h"
#include "platform/db/Recordset.h"
#include "platform/ui/Twips.h"
#include "platform/vb/Conversion.h"
#include "profile/DeviceIcons.h"

#include <QHash>
#include <QTreeWidget>

namespace ProfileLists {

const ListGrid Applications = {"MSGrid_Application",
                               "tbl_ApplicationsList",
                               {"アプリケーション名", "インストール場所", "バージョン"},
                               {u"Application_Name", u"Application_Path", u"Application_Version"}};
const ListGrid Printers = {"MSFlexGrid_Printer",
                           "tbl_Printer_Management",
                           {"プリンタ名", "プリンタポート", "バージョン"},
                           {u"Printer_Name", u"PrinterPorts_Name", u"Printer_Driver_Version"}};
const ListGrid Environment = {"MSFlexGrid_Environmental",
                              "tbl_Environmental",
                              {"環境変数名", "パス", "コメント"},
                              {u"Environmental_Name", u"Environmental_Path", u"Coments"}};

namespace {

constexpr int kCols = 4;
constexpr int kWidths[kCols] = {450, 4000, 4000, 1200};

// The text of a value that is not "" (a Null counts as not different and is skipped).
bool hasText(const vb::Variant& v, QString& text)
{
    if (v.IsNull())
        return false;
    text = vb::CStr(v);
    return !text.isEmpty();
}

// TreeView's keyed Nodes.Add: a key already in the tree is refused, as the control refused it.
class KeyedNodes {
public:
    explicit KeyedNodes(QTreeWidget& tree) : m_tree(tree) {}

    QTreeWidgetItem* add(QTreeWidgetItem* parent, const QString& key, const QString& text, const QString& image)
    {
        if (m_nodes.contains(key))
            throw vb::VbError(35602, QStringLiteral("キーがコレクション内で一意ではありません。"));
        auto* node = parent ? new QTreeWidgetItem(parent) : new QTreeWidgetItem(&m_tree);
        node->setText(0, text);
        node->setData(0, NodeKeyRole, key);
        node->setData(0, ImageKeyRole, image);
        node->setIcon(0, DeviceIcons::Icon(image));
        m_nodes.insert(key, node);
        return node;
    }
    QTreeWidgetItem* node(const QString& key) const
    {
        QTreeWidgetItem* found = m_nodes.value(key);
        if (!found)
            throw vb::VbError(35601, QStringLiteral("要素が見つかりません。"));
        return found;
    }

private:
    QTreeWidget& m_tree;
    QHash<QString, QTreeWidgetItem*> m_nodes;
};

} // namespace

void DesignGrid(ui::FlexGrid& grid)
{
    grid.SetCols(kCols);
    grid.SetRows(2);
    grid.SetFixedRows(1);
    grid.SetFixedCols(1);
}

ui::FillResult FillListGrid(ui::FlexGrid& grid, const ListGrid& list, std::int16_t key)
{
    const QString table = QString::fromUtf8(list.table);
    db::Recordset rs;
    bool redrawOff = false;
    try {
        rs.Open(QStringLiteral("SELECT ") + table + QStringLiteral(".* FROM ") + table + QStringLiteral("  WHERE (((") + table
                    + QStringLiteral(".Key)=") + QString::number(key) + QStringLiteral("));"),
                Mdl_gData::DbConnection());
        if (rs.Eof()) {
            rs.Close();
            return ui::FillResult::NoRows;
        }
        grid.SetRedraw(false);
        redrawOff = true;
        grid.Clear();
        grid.SetCols(kCols);
        grid.SetRows(int(rs.RecordCount()) + 1);
        const QColor darkGrey = ui::QBColor(ui::qbGray);
        grid.SetRow(0);
        for (int c = 0; c < kCols; ++c) {
            grid.SetColWidth(c, kWidths[c]);
            if (c == 0)
                continue;
            grid.SetCol(c);
            grid.SetText(QString::fromUtf8(list.headings[c - 1]));
            grid.SetCellBackColor(darkGrey);
            grid.SetCellAlignment(ui::flexAlignCenterBottom);
        }
        for (int row = 1; !rs.Eof(); rs.MoveNext(), ++row) {
            grid.SetRow(row);
            grid.SetCol(0);
            grid.SetText(QString::number(row));
            grid.SetCellBackColor(darkGrey);
            for (int c = 1; c < kCols; ++c) {
                QString text;
                if (!hasText(rs.Fields(list.fields[c - 1]).Value(), text))
                    continue;
                grid.SetCol(c);
                grid.SetText(text);
                grid.SetCellAlignment(ui::flexAlignLeftBottom);
            }
        }
        grid.SetRedraw(true);
        rs.Close();
        return ui::FillResult::Rows;
    } catch (const vb::VbError& e) {
        Mdl_Access_mdb::StandardErrorBox(e);
        rs.CloseIfOpen();
        if (redrawOff)
            grid.SetRedraw(true);
        return ui::FillResult::Failed;
    }
}

ui::FillResult FillDeviceTree(QTreeWidget& tree, std::int16_t key)
{
    db::Recordset rs;
    try {
        rs.Open(QStringLiteral("SELECT tbl_Device_Management.* FROM tbl_Device_Management  WHERE "
                               "(((tbl_Device_Management.Key)=")
                    + QString::number(key) + QStringLiteral(")) ORDER BY Device_Category ;"),
                Mdl_gData::DbConnection());
        if (rs.Eof()) {
            rs.Close();
            return ui::FillResult::NoRows;
        }
        tree.clear();
        KeyedNodes nodes(tree);

        // the roots: one for each run of a category; a Null category never differs, so it has none
        QString previous;
        for (rs.MoveFirst(); !rs.Eof(); rs.MoveNext()) {
            const vb::Variant& value = rs.Fields(u"Device_Category").Value();
            if (value.IsNull() || vb::CStr(value) == previous)
                continue;
            previous = vb::CStr(value);
            nodes.add(nullptr, previous, previous, DeviceIcons::KeyFor(previous));
        }

        // the devices, each under its category; the counter keeps equal names apart
        int n = 1;
        for (rs.MoveFirst(); !rs.Eof(); rs.MoveNext(), ++n) {
            const QString deviceName = vb::CStr(rs.Fields(u"Device_Name").Value()); // a Null fails here
            const QString deviceCategory = vb::CStr(rs.Fields(u"Device_Category").Value());
            if (deviceCategory.isEmpty())
                continue;
            QString text;
            const QString providerPart =
                hasText(rs.Fields(u"Device_Provider").Value(), text) ? QStringLiteral(" ") + text : QStringLiteral(" ");
            const QString versionPart =
                hasText(rs.Fields(u"Device_Version").Value(), text) ? QStringLiteral(" ") + text : QStringLiteral(" ");
            nodes.add(nodes.node(deviceCategory), deviceName + QString::number(n), deviceName + providerPart + versionPart,
                      DeviceIcons::KeyFor(deviceCategory));
        }
        rs.Close();
        return ui::FillResult::Rows;
    } catch (const vb::VbError& e) {
        Mdl_Access_mdb::StandardErrorBox(e);
        rs.CloseIfOpen();
        return ui::FillResult::Failed;
    }
}

QTreeWidgetItem* FindNode(QTreeWidget& tree, const QString& key)
{
    for (int i = 0; i < tree.topLevelItemCount(); ++i) {
        QTreeWidgetItem* root = tree.topLevelItem(i);
        if (root->data(0, NodeKeyRole).toString() == key)
            return root;
        for (int j = 0; j < root->childCount(); ++j)
            if (root->child(j)->data(0, NodeKeyRole).toString() == key)
                return root->child(j);
    }
    return nullptr;
}

} // namespace ProfileLists
