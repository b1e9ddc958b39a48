// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

// Whole PPD files: the dialog loads and saves with each. Input: a PPD file.

#include "Fuzz.h"

#include "cups/CupsSupport.h"
#include "FakeScheduler.h"
#include "properties/PrintPropertiesDialog.h"

#include <QApplication>
#include <QPrinter>

#include <cups/ppd.h>

#include <memory>

namespace {

// Used until there is an input, because Qt accepts no printer without a PPD file.
const char plainPpd[] = "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*LanguageVersion: English\n"
                        "*LanguageEncoding: ISOLatin1\n*ModelName: \"m\"\n*NickName: \"m\"\n*Manufacturer: \"m\"\n"
                        "*Product: \"(m)\"\n*PSVersion: \"(3) 0\"\n*PCFileName: \"M.PPD\"\n"
                        "*OpenUI *PageSize: PickOne\n*DefaultPageSize: a\n*PageSize a: \"\"\n*CloseUI: *PageSize\n"
                        "*DefaultPaperDimension: a\n*PaperDimension a: \"144 288\"\n"
                        "*DefaultImageableArea: a\n*ImageableArea a: \"0 0 144 288\"\n";

// One per family of printers that treats numbers differently. They are kept because creating a dialog is the slowest
// part.
struct Dialog
{
    QPrinter printer{QPrinter::ScreenResolution};
    CupsSupport cups;
    std::unique_ptr<PrintPropertiesDialog> dialog;

    explicit Dialog(int queue)
    {
        cups.setCurrentPrinter(queue);
        printer.setPrinterName(cups.getCurrentQueueName());
        FUZZ_CHECK(printer.printerName() == cups.getCurrentQueueName());
        dialog = std::make_unique<PrintPropertiesDialog>(nullptr, &printer, &cups);
    }
};

void readAll(const CupsSupport &cups)
{
    const ppd_file_t *ppd = cups.getPpdFile();
    for (int i = 0; ppd && i < ppd->num_sizes; ++i) {
        cups.pageRect(ppd->sizes[i].name);
        cups.paperRect(ppd->sizes[i].name);
    }
    FUZZ_CHECK(cups.options().size() % 2 == 0);
    const QStringList defaults = cups.ppdDefaults();
    FUZZ_CHECK(defaults.size() % 2 == 0);
    for (int i = 0; i < defaults.size(); i += 2) {
        double number = 0.0;
        QString text;
        const QByteArray keyword = defaults.at(i).toLocal8Bit();
        cups.getDouble(keyword.constData(), &number);
        cups.getString(keyword.constData(), &text);
    }
    cups.getDefaultPageSize();
    cups.getExtendedOffset();
}

// Only a Qt message that something is wrong with the program itself is a finding, not one about the file.
void noteMessage(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    std::fprintf(stderr, "%s\n", qPrintable(message));
    if (type == QtFatalMsg)
        std::abort();
}

} // namespace

int LLVMFuzzerInitialize(int *, char ***)
{
    static int argc = 1;
    static char name[] = "PpdFuzzer";
    static char *argv[] = {name, nullptr};
    qInstallMessageHandler(noteMessage);
    static QApplication application(argc, argv);
    FakeScheduler::setQueues({"plain", "ZED"});
    FakeScheduler::setPpd(plainPpd);
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static Dialog dialogs[] = {Dialog(0), Dialog(1)};
    Dialog &d = dialogs[size % 2];
    FakeScheduler::setPpd(bytes(data, size));
    d.cups.setCurrentPrinter(static_cast<int>(size % 2)); // opens the file
    readAll(d.cups);
    d.dialog->updateDialog();
    d.dialog->setChanged(true);
    d.dialog->saveValues();
    d.dialog->updateDialog();

    // Remove everything before the next input.
    QStringList keywords;
    const QStringList stored = d.cups.cupsOptions();
    for (int i = 0; i < stored.size(); i += 2)
        keywords << stored.at(i);
    d.cups.deleteOptions(keywords);
    d.cups.closePpdFile();
    return 0;
}
