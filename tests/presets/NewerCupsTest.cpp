// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "PresetFiles.h"
#include "TestMain.h"
#include "cups/OptionsMemory.h"
#include "cups/OptionsPlace.h"
#include "presets/Preset.h"

#include <QTest>

#include <cups/cups.h>

#include <functional>

// Makes the library find libcups 2.5 and an ordinary user.
extern "C" const char *cupsUserAgent()
{
    return "CUPS/2.5.0 (Linux 6.1; x86_64) IPP/2.1";
}

extern "C" uid_t getuid() noexcept
{
    return 1000;
}

extern "C" uid_t geteuid() noexcept
{
    return 1000;
}

namespace {

// Where libcups reads the options.
QString optionsFile()
{
    return QFile::decodeName(OptionsPlace::find(OptionsPlace::current()).file());
}

void savePreset()
{
    Preset preset("LP1", "P", {"Darkness", "4"}, QString(), QString(), -1);
    QVERIFY(preset.save({}));
    QVERIFY(PresetFiles::readFile(PresetFiles::script("LP1", "P")).contains(" -oDarkness=4"));
}

void rememberOptions()
{
    const QByteArray home = qgetenv("HOME");
    OptionArray options;
    options.set("JobStart", "a#b");
    OptionsMemory::remember(home, "LP1", {}, options, &OptionsSyntax::readWithLibcups);
    QVERIFY(OptionsMemory::recall(home, "LP1", {}) == options);
}

} // namespace

Q_DECLARE_METATYPE(std::function<void()>)

// If this fails, settings that were saved with a newer libcups are no longer found after a preset was saved.
class NewerCupsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void optionsFileStaysInUse_data();
    void optionsFileStaysInUse();
};

void NewerCupsTest::init()
{
    QVERIFY(QFile::remove(PresetFiles::root()) || QDir(PresetFiles::root()).removeRecursively());
    QVERIFY(QDir(QDir::homePath() + "/.config").removeRecursively());
}

// libcups uses ~/.config/cups only as long as there is no ~/.cups, where the presets belong.
void NewerCupsTest::optionsFileStaysInUse_data()
{
    QTest::addColumn<std::function<void()>>("function");
    QTest::addColumn<bool>("isNewUser");
    for (const bool isNewUser : {false, true}) {
        const char *const start = isNewUser ? "new user" : "user with options";
        QTest::addRow("%s, preset", start) << std::function<void()>(savePreset) << isNewUser;
        QTest::addRow("%s, remembered options", start) << std::function<void()>(rememberOptions) << isNewUser;
    }
}

void NewerCupsTest::optionsFileStaysInUse()
{
    QFETCH(std::function<void()>, function);
    QFETCH(bool, isNewUser);
    const QByteArray options("Dest LP2 Darkness=3\n");
    const QString before = optionsFile();
    QVERIFY2(before.endsWith("/.config/cups/lpoptions"), qPrintable(before));
    if (!isNewUser)
        QVERIFY(PresetFiles::writeFile(before, options));
    function();
    if (isNewUser) // by libcups, which found its folder when the process began
        QVERIFY(PresetFiles::writeFile(before, options));
    QCOMPARE(PresetFiles::readFile(optionsFile()), options);
}

PROPERTIESDIALOG_TEST_MAIN(NewerCupsTest)

#include "NewerCupsTest.moc"
