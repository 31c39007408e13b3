#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace db {
class Connection;
}

// An organisation's ledger, made up: locations, sections, divisions, makers and models, users
// (a few of them retired), computers, network devices and printers. Everything goes in as Jet
// statements through the connection, each routine in one transaction. The same seed gives the
// same ledger. The demo ledger takes its masters and users from here and its computers from
// inventory files read by the intake; the benchmarks take the computers from here as well,
// written straight to both tables, which makes a ledger of thousands in a moment.
namespace LedgerGenerator {

// A text as a Jet literal, its apostrophes doubled.
QString Quoted(const QString& text);

// The master rows, codes from 1 in the order of these lists. Location 4 and model 3 are
// retired ("1" in Available_flug) while computers still use them.
const QStringList& Locations();
const QStringList& Sections();
const QStringList& Divisions();
const QStringList& Makers();
const QStringList& Models();
int MakerOfModel(int modelCode);
void Masters(db::Connection& connection);

struct User {
    int code;
    QString name;
    QString account;
    int section; // code
};
// Users 1 to count, each in a section and a division; every thirtieth has left (retired).
std::vector<User> Users(db::Connection& connection, int count, unsigned seed);

// Masters, about one user per computer, and computers 1 to computers with both of their rows.
void Generate(db::Connection& connection, int computers, unsigned seed = 20050401);

// Devices of the register: routers, printers, hubs and servers on the computers' subnets and on
// 10.x, one in twenty without an address.
void AddDevices(db::Connection& connection, int devices);

// Two printers for most computers: a shared laser printer of the floor, and a local one.
void AddPrinters(db::Connection& connection, int computers);

} // namespace LedgerGenerator
