#pragma once

#include <QIcon>
#include <QString>
#include <QStringList>

// ImageList1 of the profile's device tree: 30 pictures of 20 by 20 pixels, each under the name of
// a device class as the inventory reports it. The pictures are drawn here; variants of one class
// ("キーボード" and "ｷｰﾎﾞｰﾄﾞ") have one picture.
namespace DeviceIcons {

inline constexpr int IconSize = 20;

// The 30 keys in the list's order.
const QStringList& Keys();

// The picture of a key of the list; a null icon for any other text.
QIcon Icon(const QString& key);

// The key a category's nodes take: the key equal to the category, or "システム デバイス" when
// none is.
QString KeyFor(const QString& category);

} // namespace DeviceIcons
