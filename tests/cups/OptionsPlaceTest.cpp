// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "cups/OptionsPlace.h"

#include <QMap>
#include <QTest>

#include <cups/cups.h>

using OptionsPlace::Circumstances;
using Environment = QMap<QByteArray, QByteArray>;

namespace {

QByteArray text(const Circumstances &version)
{
    return QByteArray::number(version.major) + '.' + QByteArray::number(version.minor) + '.'
           + QByteArray::number(version.patch);
}

const QByteArray built = QByteArray::number(CUPS_VERSION_MAJOR) + '.' + QByteArray::number(CUPS_VERSION_MINOR) + '.'
                         + QByteArray::number(CUPS_VERSION_PATCH);

} // namespace

// If this fails, settings are saved to a file that the installed version of CUPS does not read.
class OptionsPlaceTest : public QObject
{
    Q_OBJECT

private slots:
    void place_data();
    void place();
    void version_data();
    void version();
    void versionOfTheRunningLibrary();
};

void OptionsPlaceTest::place_data()
{
    QTest::addColumn<QByteArray>("version");
    QTest::addColumn<bool>("isRoot");
    QTest::addColumn<Environment>("environment");
    QTest::addColumn<bool>("hasTraditionalFolder");
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<bool>("isSystemWide");

    const QByteArray inHome = "/home/u/.cups/lpoptions";
    const Environment home{{"HOME", "/home/u"}};
    const auto with = [home](const Environment &others) {
        Environment all = home;
        for (auto it = others.begin(); it != others.end(); ++it)
            all.insert(it.key(), it.value());
        return all;
    };
    const auto row = [](const char *name, const QByteArray &version, bool isRoot, const Environment &environment,
                        bool hasFolder, const QByteArray &file, bool isSystemWide = false) {
        QTest::newRow(name) << version << isRoot << environment << hasFolder << file << isSystemWide;
    };
    const Environment serverRoot = with({{"CUPS_SERVERROOT", "/srv/c"}});
    const Environment desktop = with({{"XDG_CONFIG_HOME", "/x"}});
    const Environment everything = with({{"CUPS_USERCONFIG", "/c"},
                                         {"SNAP_COMMON", "/s"},
                                         {"XDG_CONFIG_HOME", "/x"},
                                         {"CUPS_SYSCONFIG", "/sys"},
                                         {"CUPS_SERVERROOT", "/srv/c"}});
    const Environment snap = with({{"SNAP_COMMON", "/s"}, {"XDG_CONFIG_HOME", "/x"}});

    row("2.4.2 user", "2.4.2", false, home, true, inHome);
    row("2.4.2 user, new", "2.4.2", false, home, false, inHome);
    row("2.4.2 user, every variable", "2.4.2", false, everything, false, inHome);
    row("2.4.2 user without HOME", "2.4.2", false, {}, false, "/passwd/u/.cups/lpoptions");
    row("2.4.2 root", "2.4.2", true, home, true, inHome);
    row("2.4.9 root", "2.4.9", true, serverRoot, true, inHome);
    row("2.3.3 root", "2.3.3", true, home, true, inHome);
    row("2.4.10 user", "2.4.10", false, everything, false, inHome);
    row("2.4.10 root", "2.4.10", true, home, true, "/etc/cups/lpoptions", true);
    row("2.4.10 root, server root", "2.4.10", true, serverRoot, true, "/srv/c/lpoptions", true);
    row("2.4.10 root, every variable", "2.4.10", true, everything, true, "/srv/c/lpoptions", true);
    row("2.4.20 root", "2.4.20", true, home, true, "/etc/cups/lpoptions", true);
    row("2.5 user with ~/.cups", "2.5b1", false, home, true, inHome);
    row("2.5 user", "2.5b1", false, home, false, "/home/u/.config/cups/lpoptions");
    row("2.5 user, every variable", "2.5.0", false, everything, true, "/c/lpoptions");
    row("2.5 user in a snap", "2.5.0", false, snap, true, "/s/cups/lpoptions");
    row("2.5 user, XDG", "2.5.0", false, desktop, true, "/x/cups/lpoptions");
    row("2.5 user without HOME", "2.5.0", false, {}, false, "/passwd/u/.config/cups/lpoptions");
    row("2.5 root", "2.5.0", true, desktop, true, "/etc/cups/lpoptions", true);
    row("2.5 root, server root", "2.5.0", true, serverRoot, true, "/srv/c/lpoptions", true);
    row("2.5 root, every variable", "2.5.0", true, everything, true, "/sys/lpoptions", true);
    row("3.0 user", "3.0.0", false, home, false, "/home/u/.config/cups/lpoptions");
}

void OptionsPlaceTest::place()
{
    QFETCH(QByteArray, version);
    QFETCH(bool, isRoot);
    QFETCH(Environment, environment);
    QFETCH(bool, hasTraditionalFolder);
    QFETCH(QByteArray, file);
    QFETCH(bool, isSystemWide);
    Circumstances circumstances = OptionsPlace::fromVersion("CUPS/" + version + " (Linux 6.1; x86_64) IPP/2.0");
    circumstances.isRoot = isRoot;
    circumstances.homeOfUser = "/passwd/u";
    circumstances.environment = [environment](const char *name) { return environment.value(name); };
    circumstances.exists = [=](const QByteArray &path) { return hasTraditionalFolder && path == "/home/u/.cups"; };
    const OptionsPlace::Place found = OptionsPlace::find(circumstances);
    QCOMPARE(found.file(), file);
    QCOMPARE(found.isSystemWide, isSystemWide);
}

void OptionsPlaceTest::version_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("version");
    QTest::newRow("2.4") << QByteArray("CUPS/9.8.7 (Linux 6.1; x86_64) IPP/2.0") << QByteArray("9.8.7");
    QTest::newRow("newer") << QByteArray("CUPS/9.8.17 IPP/2.1") << QByteArray("9.8.17");
    QTest::newRow("beta") << QByteArray("CUPS/9.8b1 IPP/2.1") << QByteArray("9.8.0");
    QTest::newRow("none") << QByteArray("") << built;
    QTest::newRow("product only") << QByteArray("CUPS IPP") << built;
    QTest::newRow("major") << QByteArray("CUPS/" + QByteArray::number(CUPS_VERSION_MAJOR) + " IPP/2") << built;
    QTest::newRow("minor") << QByteArray("CUPS/" + built.left(built.lastIndexOf('.')) + " IPP/2.1") << built;
    QTest::newRow("other minor") << QByteArray("CUPS/9.8 IPP/2.1") << QByteArray("9.8.0");
}

// The administrator decides in client.conf how much libcups tells of its version.
void OptionsPlaceTest::version()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, version);
    QCOMPARE(text(OptionsPlace::fromVersion(name)), version);
}

// Also when the host has set its own name in libcups, which is kept.
void OptionsPlaceTest::versionOfTheRunningLibrary()
{
    cupsSetUserAgent("Labels/1.0");
    const Circumstances found = OptionsPlace::current();
    QCOMPARE(QByteArray(cupsUserAgent()), QByteArray("Labels/1.0"));
    cupsSetUserAgent(nullptr);
    const QByteArray start = "CUPS/" + text(found) + ' ';
    QVERIFY2(QByteArray(cupsUserAgent()).startsWith(start), cupsUserAgent());
}

QTEST_GUILESS_MAIN(OptionsPlaceTest)
#include "OptionsPlaceTest.moc"
