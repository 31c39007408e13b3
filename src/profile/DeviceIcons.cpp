#include "profile/DeviceIcons.h"

#include <QHash>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace DeviceIcons {

namespace {

using Draw = void (*)(QPainter&);

const QColor kInk(40, 40, 48);
const QColor kSteel(150, 158, 170);
const QColor kPale(228, 232, 238);
const QColor kBlue(52, 101, 164);
const QColor kGreen(60, 140, 70);
const QColor kAmber(225, 160, 40);
const QColor kRed(190, 50, 50);

void pen(QPainter& p, const QColor& c, qreal w = 1.0) { p.setPen(QPen(c, w, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin)); }

void disc(QPainter& p)
{
    pen(p, kInk);
    QRadialGradient g(10, 10, 9, 7, 7);
    g.setColorAt(0, Qt::white);
    g.setColorAt(0.6, QColor(200, 210, 235));
    g.setColorAt(1, QColor(170, 150, 210));
    p.setBrush(g);
    p.drawEllipse(QRectF(1.5, 1.5, 17, 17));
    p.setBrush(kPale);
    p.drawEllipse(QRectF(7, 7, 6, 6));
    p.setBrush(Qt::white);
    p.drawEllipse(QRectF(9, 9, 2, 2));
}

// A chip with pins on two sides, in the given colour.
void chip(QPainter& p, const QColor& body, const QString& label = QString())
{
    pen(p, kSteel, 1.2);
    for (int x = 5; x <= 15; x += 2) {
        p.drawLine(QPointF(x, 2), QPointF(x, 5));
        p.drawLine(QPointF(x, 15), QPointF(x, 18));
    }
    pen(p, kInk);
    p.setBrush(body);
    p.drawRoundedRect(QRectF(3.5, 4.5, 13, 11), 1.5, 1.5);
    if (!label.isEmpty()) {
        QFont f = p.font();
        f.setPixelSize(5);
        f.setBold(true);
        p.setFont(f);
        pen(p, Qt::white);
        p.drawText(QRectF(3.5, 4.5, 13, 11), Qt::AlignCenter, label);
    }
}

void controller(QPainter& p) { chip(p, QColor(70, 70, 80)); }
void systemDevice(QPainter& p)
{
    pen(p, kInk);
    p.setBrush(kGreen);
    p.drawRect(QRectF(1.5, 3.5, 17, 13));
    p.setBrush(QColor(40, 40, 40));
    p.drawRect(QRectF(4, 6, 6, 5));
    p.setBrush(kAmber);
    p.drawRect(QRectF(12, 6, 4, 2));
    p.drawRect(QRectF(12, 10, 4, 2));
    pen(p, kAmber);
    p.drawLine(QPointF(3, 14), QPointF(17, 14));
}
void processor(QPainter& p) { chip(p, kBlue, QStringLiteral("CPU")); }

void pcCard(QPainter& p)
{
    pen(p, kInk);
    p.setBrush(kSteel);
    p.drawRoundedRect(QRectF(3.5, 2.5, 13, 15), 1, 1);
    p.setBrush(kPale);
    p.drawRect(QRectF(5.5, 5.5, 9, 7));
    pen(p, kInk, 1.4);
    p.drawLine(QPointF(5, 15.5), QPointF(15, 15.5));
}

void usb(QPainter& p)
{
    pen(p, kInk, 1.6);
    p.drawLine(QPointF(10, 17), QPointF(10, 4));
    p.drawLine(QPointF(10, 13), QPointF(5, 9));
    p.drawLine(QPointF(5, 9), QPointF(5, 7));
    p.drawLine(QPointF(10, 11), QPointF(15, 8));
    p.drawLine(QPointF(15, 8), QPointF(15, 6));
    p.setBrush(kInk);
    p.drawPolygon(QPolygonF({QPointF(10, 1.5), QPointF(7.5, 5), QPointF(12.5, 5)}));
    p.drawEllipse(QRectF(3.5, 5, 3, 3));
    p.drawRect(QRectF(13.5, 4, 3, 3));
    p.drawEllipse(QRectF(8, 15.5, 4, 3));
}

void keyboard(QPainter& p)
{
    pen(p, kInk);
    p.setBrush(kPale);
    p.drawRoundedRect(QRectF(0.5, 5.5, 19, 10), 1.5, 1.5);
    p.setBrush(Qt::white);
    for (int row = 0; row < 2; ++row)
        for (int x = 2; x <= 16; x += 3)
            p.drawRect(QRectF(x, 7 + row * 3, 2, 2));
    p.drawRect(QRectF(5, 13, 10, 1.5));
}

void monitorShape(QPainter& p, qreal right)
{
    pen(p, kInk);
    p.setBrush(kPale);
    p.drawRoundedRect(QRectF(1.5, 2.5, right - 1.5, 11), 1, 1);
    QLinearGradient g(0, 4, 0, 12);
    g.setColorAt(0, QColor(90, 150, 220));
    g.setColorAt(1, kBlue);
    p.setBrush(g);
    p.drawRect(QRectF(3, 4, right - 4.5, 8));
    p.setBrush(kSteel);
    const qreal mid = (1.5 + right) / 2;
    p.drawRect(QRectF(mid - 1.5, 13.5, 3, 2));
    p.drawRect(QRectF(mid - 4.5, 15.5, 9, 2));
}

void monitor(QPainter& p) { monitorShape(p, 18.5); }

void computer(QPainter& p)
{
    monitorShape(p, 13.5);
    pen(p, kInk);
    p.setBrush(kPale);
    p.drawRect(QRectF(14.5, 4.5, 4.5, 13));
    p.setBrush(kGreen);
    p.drawRect(QRectF(15.5, 15, 1.5, 1.2));
    pen(p, kSteel);
    p.drawLine(QPointF(15.5, 7), QPointF(18, 7));
}

void sound(QPainter& p)
{
    pen(p, kInk);
    p.setBrush(kSteel);
    p.drawPolygon(QPolygonF({QPointF(2, 7.5), QPointF(6, 7.5), QPointF(11, 3), QPointF(11, 17), QPointF(6, 12.5), QPointF(2, 12.5)}));
    p.setBrush(Qt::NoBrush);
    pen(p, kBlue, 1.4);
    p.drawArc(QRectF(8, 6, 6, 8), -60 * 16, 120 * 16);
    p.drawArc(QRectF(7, 3, 11, 14), -60 * 16, 120 * 16);
}

void codec(QPainter& p)
{
    chip(p, QColor(110, 60, 140));
    pen(p, kAmber, 1.3);
    QPainterPath wave;
    wave.moveTo(5, 10);
    wave.cubicTo(7, 5, 9, 15, 11, 10);
    wave.cubicTo(13, 5, 14, 13, 15.5, 10);
    p.setBrush(Qt::NoBrush);
    p.drawPath(wave);
}

void diskDrive(QPainter& p)
{
    pen(p, kInk);
    QLinearGradient g(0, 5, 0, 16);
    g.setColorAt(0, kPale);
    g.setColorAt(1, kSteel);
    p.setBrush(g);
    p.drawRoundedRect(QRectF(1.5, 5.5, 17, 10), 1.5, 1.5);
    p.setBrush(kGreen);
    p.drawEllipse(QRectF(14, 12, 2.5, 2));
    pen(p, kInk);
    p.drawLine(QPointF(4, 9), QPointF(12, 9));
}

void volume(QPainter& p)
{
    pen(p, kInk);
    p.setBrush(kSteel);
    p.drawEllipse(QRectF(3.5, 12, 13, 5));
    p.drawRect(QRectF(3.5, 6, 13, 8.5));
    pen(p, Qt::NoPen);
    p.drawRect(QRectF(4, 13, 12, 2));
    pen(p, kInk);
    p.setBrush(kPale);
    p.drawEllipse(QRectF(3.5, 3.5, 13, 5));
}

void display(QPainter& p)
{
    pen(p, kInk);
    p.setBrush(kGreen);
    p.drawRect(QRectF(1.5, 4.5, 15, 10));
    p.setBrush(QColor(40, 40, 40));
    p.drawRect(QRectF(4, 7, 6, 5));
    p.setBrush(kAmber);
    p.drawRect(QRectF(3, 14.5, 12, 2));
    p.setBrush(kBlue);
    p.drawRect(QRectF(16.5, 5.5, 2.5, 8));
}

void tape(QPainter& p)
{
    pen(p, kInk);
    p.setBrush(QColor(60, 60, 70));
    p.drawRoundedRect(QRectF(1.5, 4.5, 17, 11), 1.5, 1.5);
    p.setBrush(Qt::white);
    p.drawEllipse(QRectF(4, 7, 4, 4));
    p.drawEllipse(QRectF(12, 7, 4, 4));
    p.setBrush(kSteel);
    p.drawRect(QRectF(6, 12.5, 8, 3));
}

void network(QPainter& p)
{
    pen(p, kInk);
    p.setBrush(kPale);
    p.drawRect(QRectF(1.5, 1.5, 7, 6));
    p.drawRect(QRectF(11.5, 12.5, 7, 6));
    p.setBrush(kBlue);
    p.drawRect(QRectF(2.5, 2.5, 5, 3.5));
    p.drawRect(QRectF(12.5, 13.5, 5, 3.5));
    pen(p, kGreen, 1.6);
    p.drawLine(QPointF(5, 8), QPointF(5, 15));
    p.drawLine(QPointF(5, 15), QPointF(11, 15));
}

void battery(QPainter& p)
{
    pen(p, kInk);
    p.setBrush(kPale);
    p.drawRoundedRect(QRectF(1.5, 6.5, 15, 8), 1, 1);
    p.setBrush(kInk);
    p.drawRect(QRectF(16.5, 8.5, 2, 4));
    p.setBrush(kGreen);
    pen(p, Qt::NoPen);
    p.drawRect(QRectF(3, 8, 9, 5));
}

void humanInterface(QPainter& p)
{
    pen(p, kInk);
    p.setBrush(kSteel);
    p.drawRoundedRect(QRectF(2.5, 13.5, 15, 4), 1, 1);
    pen(p, kInk, 2);
    p.drawLine(QPointF(10, 14), QPointF(10, 7));
    pen(p, kInk);
    p.setBrush(kRed);
    p.drawEllipse(QRectF(7, 2, 6, 6));
    p.drawEllipse(QRectF(14, 11.5, 2.5, 2));
}

void floppyController(QPainter& p) { chip(p, QColor(90, 90, 110), QStringLiteral("FD")); }

void floppy(QPainter& p)
{
    pen(p, kInk);
    p.setBrush(kBlue);
    p.drawPolygon(QPolygonF({QPointF(2.5, 2.5), QPointF(15.5, 2.5), QPointF(17.5, 4.5), QPointF(17.5, 17.5), QPointF(2.5, 17.5)}));
    p.setBrush(kSteel);
    p.drawRect(QRectF(5.5, 2.5, 8, 5));
    p.setBrush(QColor(60, 60, 70));
    p.drawRect(QRectF(10, 3.5, 2, 3));
    p.setBrush(Qt::white);
    p.drawRect(QRectF(4.5, 10.5, 11, 7));
}

void ports(QPainter& p)
{
    pen(p, kInk);
    p.setBrush(kSteel);
    p.drawPolygon(QPolygonF({QPointF(1.5, 6.5), QPointF(18.5, 6.5), QPointF(16, 13.5), QPointF(4, 13.5)}));
    p.setBrush(kInk);
    for (int x = 4; x <= 15; x += 2)
        p.drawEllipse(QRectF(x, 8.5, 1.4, 1.4));
    for (int x = 5; x <= 14; x += 2)
        p.drawEllipse(QRectF(x, 11, 1.4, 1.4));
}

void mouse(QPainter& p)
{
    pen(p, kInk);
    p.setBrush(Qt::NoBrush);
    QPainterPath cable;
    cable.moveTo(10, 6);
    cable.cubicTo(10, 2, 14, 3, 16, 1);
    p.drawPath(cable);
    p.setBrush(kPale);
    p.drawRoundedRect(QRectF(5.5, 6.5, 9, 12), 4.5, 4.5);
    p.drawLine(QPointF(10, 6.5), QPointF(10, 11));
    p.drawLine(QPointF(5.5, 11), QPointF(14.5, 11));
}

void modem(QPainter& p)
{
    pen(p, kInk);
    p.setBrush(kPale);
    p.drawRoundedRect(QRectF(1.5, 8.5, 17, 7), 2, 2);
    p.setBrush(kGreen);
    for (int x = 4; x <= 10; x += 3)
        p.drawEllipse(QRectF(x, 11, 1.8, 1.8));
    p.setBrush(Qt::NoBrush);
    pen(p, kBlue, 1.3);
    p.drawArc(QRectF(11, 2, 6, 6), 0, 180 * 16);
    p.drawArc(QRectF(9, 0.5, 10, 8), 20 * 16, 140 * 16);
}

void infrared(QPainter& p)
{
    pen(p, kInk);
    p.setBrush(kRed);
    p.drawEllipse(QRectF(2, 8, 5, 5));
    p.setBrush(Qt::NoBrush);
    pen(p, kRed, 1.4);
    p.drawArc(QRectF(3, 5, 8, 11), -50 * 16, 100 * 16);
    p.drawArc(QRectF(3, 2, 12, 17), -50 * 16, 100 * 16);
    p.drawArc(QRectF(3, -1, 16, 23), -45 * 16, 90 * 16);
}

void busController(QPainter& p) { chip(p, QColor(70, 70, 80), QStringLiteral("1394")); }

struct Entry {
    const char* key;
    Draw draw;
};

// ImageList1 in its order.
const Entry kEntries[] = {
    {"DVD/CD-ROM ドライブ", disc},
    {"CD-ROM", disc},
    {"IDE ATA/ATAPI コントローラ", controller},
    {"PCMCIA アダプタ", pcCard},
    {"SCSI と RAID コントローラ", controller},
    {"SCSI ｺﾝﾄﾛｰﾗ", controller},
    {"USB (Universal Serial Bus) コントローラ", usb},
    {"キーボード", keyboard},
    {"コンピュータ", computer},
    {"システム デバイス", systemDevice},
    {"サウンド、ビデオ、およびゲーム コントローラ", sound},
    {"ディスク ドライブ", diskDrive},
    {"ディスプレイ アダプタ", display},
    {"Display adapters", display},
    {"テープ ドライブ", tape},
    {"ネットワーク アダプタ", network},
    {"バッテリ", battery},
    {"ヒューマン インターフェイス デバイス", humanInterface},
    {"プロセッサ", processor},
    {"フロッピー ディスク コントローラ", floppyController},
    {"フロッピー ディスク ドライブ", floppy},
    {"ポート (COM と LPT)", ports},
    {"マウスとそのほかのポインティング デバイス", mouse},
    {"モニタ", monitor},
    {"モデム", modem},
    {"ｷｰﾎﾞｰﾄﾞ", keyboard},
    {"赤外線デバイス", infrared},
    {"1394 バス ホスト コントローラ", busController},
    {"Intel AIM 3.0 Codec", codec},
    {"記憶域ボリューム", volume},
};

const QString kSystemDevice = QStringLiteral("システム デバイス");

QIcon paint(Draw draw)
{
    QIcon icon;
    // drawn at the list's size and at twice it, for screens with a device pixel ratio of 2
    for (int scale : {1, 2}) {
        QPixmap pixmap(IconSize * scale, IconSize * scale);
        pixmap.fill(Qt::transparent);
        QPainter p(&pixmap);
        p.setRenderHint(QPainter::Antialiasing);
        p.scale(scale, scale);
        draw(p);
        p.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace

const QStringList& Keys()
{
    static const QStringList keys = [] {
        QStringList out;
        for (const Entry& e : kEntries)
            out << QString::fromUtf8(e.key);
        return out;
    }();
    return keys;
}

QIcon Icon(const QString& key)
{
    // painted once per key, on first use (a QPixmap needs the application object)
    static QHash<QString, QIcon> painted;
    auto it = painted.constFind(key);
    if (it != painted.cend())
        return *it;
    for (const Entry& e : kEntries)
        if (key == QString::fromUtf8(e.key))
            return *painted.insert(key, paint(e.draw));
    return {};
}

QString KeyFor(const QString& category)
{
    // the run over the list does not stop at a match; the keys are unique, so the last match is
    // the only one
    QString key = kSystemDevice;
    for (const QString& k : Keys())
        if (k == category)
            key = k;
    return key;
}

} // namespace DeviceIcons
