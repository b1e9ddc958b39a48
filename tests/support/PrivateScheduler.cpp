// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "PrivateScheduler.h"

#include "TestMain.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QThread>

#include <cups/cups.h>

#include <algorithm>
#include <memory>

namespace {

const int patienceMs = 30000; // far longer than anything here takes, even on a busy machine

QByteArray readFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s: %s", qPrintable(path), qPrintable(file.errorString()));
    return file.readAll();
}

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s: %s", qPrintable(path), qPrintable(file.errorString()));
}

// Repeats @p predicate until it is true.
template<typename Predicate>
void waitFor(const char *what, Predicate predicate)
{
    QElapsedTimer timer;
    timer.start();
    while (!predicate()) {
        if (timer.elapsed() > patienceMs)
            qFatal("waited in vain for %s", what);
        QThread::msleep(5);
    }
}

// The libcups of this process may be connected to another scheduler, or to this one before it was restarted.
using Connection = std::unique_ptr<http_t, decltype(&httpClose)>;

Connection connectTo(const QString &socket)
{
    const QByteArray path = QFile::encodeName(socket);
    Connection connection(
        httpConnect2(path.constData(), 0, nullptr, AF_UNSPEC, HTTP_ENCRYPTION_NEVER, 1, patienceMs, nullptr),
        &httpClose);
    if (!connection)
        qFatal("cannot connect to %s", path.constData());
    return connection;
}

using Request = std::unique_ptr<ipp_t, decltype(&ippDelete)>;

Request requestFor(ipp_op_t operation, const QString &queue)
{
    Request request(ippNewRequest(operation), &ippDelete);
    const QByteArray uri = "ipp://localhost/printers/" + queue.toUtf8();
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri.constData());
    return request;
}

void addText(const Request &request, ipp_tag_t type, const char *attribute, const QString &text)
{
    ippAddString(request.get(), IPP_TAG_PRINTER, type, attribute, nullptr, text.toUtf8().constData());
}

// libcups writes root's options to the system's folder and does not create it.
void makeFolderOfOptions()
{
    if (TestMain::isOptionsFileSystemWide())
        QDir().mkpath(qEnvironmentVariable("CUPS_SERVERROOT"));
}

} // namespace

QByteArray CapturedJob::option(const char *keyword) const
{
    cups_option_t *list = nullptr;
    const int count = cupsParseOptions(options.constData(), 0, &list);
    const QByteArray value = cupsGetOption(keyword, count, list);
    cupsFreeOptions(count, list);
    return value;
}

PrivateScheduler::PrivateScheduler()
    : temporaryDir(TestMain::scratchFolder() + "/pd-XXXXXX")
{
    qputenv("CUPS_SERVER", QFile::encodeName(socket()));
    // Debian does not put administrators' commands such as lpadmin on a user's path.
    qputenv("PATH", qgetenv("PATH") + ":/usr/sbin:/sbin");
    // libcups may have read the variable already.
    cupsSetServer(QFile::encodeName(socket()).constData());
    start();
}

PrivateScheduler::~PrivateScheduler()
{
    stop();
    // Programs that the scheduler has started, a backend say, may outlive it for a moment and still write there.
    for (int tries = 0; tries < 100 && !QDir(dir()).removeRecursively(); ++tries)
        QThread::msleep(20);
}

void PrivateScheduler::start()
{
    script(QStringLiteral("start"));
    startRequests();
}

void PrivateScheduler::stop()
{
    script(QStringLiteral("stop"));
}

void PrivateScheduler::useDrivers()
{
    stop();
    writeFile(temporaryDir.filePath("share/mime/drivers.types"),
              "application/vnd.cups-pdf\n"
              "application/vnd.cups-raster string(0,\"RaS3\") string(0,\"3SaR\")\n");
    writeFile(temporaryDir.filePath("share/mime/drivers.convs"),
              "application/pdf application/vnd.cups-pdf 66 pdftopdf\n"
              "application/vnd.cups-pdf application/vnd.cups-raster 100 pdftoraster\n");
    start();
}

// Administers as lpadmin does, which takes many times longer: tests do this hundreds of times.
void PrivateScheduler::addQueue(const QString &name, const QString &ppd, const QString &description,
                                const QString &location)
{
    Request request = requestFor(IPP_OP_CUPS_ADD_MODIFY_PRINTER, name);
    addText(request, IPP_TAG_URI, "device-uri", "capture:/");
    ippAddBoolean(request.get(), IPP_TAG_PRINTER, "printer-is-accepting-jobs", 1);
    ippAddInteger(request.get(), IPP_TAG_PRINTER, IPP_TAG_ENUM, "printer-state", IPP_PSTATE_IDLE);
    if (!description.isEmpty())
        addText(request, IPP_TAG_TEXT, "printer-info", description);
    if (!location.isEmpty())
        addText(request, IPP_TAG_TEXT, "printer-location", location);
    send(request.release(), ppd);
}

void PrivateScheduler::removeQueue(const QString &name)
{
    send(requestFor(IPP_OP_CUPS_DELETE_PRINTER, name).release());
    if (name == serverDefault)
        serverDefault.clear();
}

void PrivateScheduler::setPpd(const QString &queue, const QString &ppd)
{
    send(requestFor(IPP_OP_CUPS_ADD_MODIFY_PRINTER, queue).release(), ppd);
}

void PrivateScheduler::setServerDefault(const QString &name)
{
    // Tests say this for each row. The scheduler would write its files each time.
    if (name == serverDefault)
        return;
    send(requestFor(IPP_OP_CUPS_SET_DEFAULT, name).release());
    serverDefault = name;
}

void PrivateScheduler::setUserDefault(const QString &name)
{
    makeFolderOfOptions();
    run("lpoptions", {"-d", name});
}

void PrivateScheduler::setUserOptions(const QString &name, const QStringList &options)
{
    const Connection connection = connectTo(socket());
    const QByteArray queue = name.section('/', 0, 0).toUtf8();
    const QByteArray instance = name.section('/', 1).toUtf8();
    cups_dest_t *dests = nullptr;
    int count = cupsGetDests2(connection.get(), &dests);
    count = cupsAddDest(queue.constData(), instance.isEmpty() ? nullptr : instance.constData(), count, &dests);
    cups_dest_t *dest =
        cupsGetDest(queue.constData(), instance.isEmpty() ? nullptr : instance.constData(), count, dests);
    if (!dest)
        qFatal("there is no queue %s", queue.constData());
    for (const QString &option : options)
        dest->num_options = cupsParseOptions(option.toUtf8().constData(), dest->num_options, &dest->options);
    makeFolderOfOptions();
    if (cupsSetDests2(connection.get(), count, dests) != 0)
        qFatal("the options of %s cannot be saved: %s", qPrintable(name), cupsLastErrorString());
    cupsFreeDests(count, dests);
}

QByteArray PrivateScheduler::run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    const bool finished = process.waitForFinished(patienceMs);
    if (!finished || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        qFatal("%s %s failed: %s %s", qPrintable(program), qPrintable(arguments.join(' ')),
               qPrintable(process.errorString()), process.readAllStandardError().constData());
    }
    return process.readAllStandardOutput();
}

QStringList PrivateScheduler::requests()
{
    // A request is logged after its answer has been sent, so its client may continue earlier. The scheduler does one
    // thing at a time: once a later request is logged, the earlier ones are.
    const QByteArray marker = "/marker-" + QByteArray::number(++markers);
    const Connection connection = connectTo(socket());
    httpClearFields(connection.get());
    httpGet(connection.get(), marker.constData());
    while (httpUpdate(connection.get()) == HTTP_STATUS_CONTINUE) {
    }
    waitFor("the access log", [&] { return accessLog().contains(marker + ' '); });

    QStringList list;
    static const QRegularExpression request(R"("(\w+) (\S+) HTTP[^"]*" \d+ \d+ (\S+) \S+$)");
    const QStringList lines = QString::fromUtf8(accessLog().mid(loggedBefore)).split('\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        const QRegularExpressionMatch match = request.match(line);
        const bool isIpp = match.captured(1) == "POST";
        if (!match.captured(2).startsWith("/marker-"))
            list << (isIpp ? match.captured(3) : match.captured(1) + ' ' + match.captured(2));
    }
    return list;
}

void PrivateScheduler::startRequests()
{
    requests(); // up to here everything is logged
    loggedBefore = int(accessLog().size());
}

QList<CapturedJob> PrivateScheduler::jobs(int count)
{
    QList<CapturedJob> list;
    waitFor("print jobs", [&] {
        list = capturedNow();
        return list.size() >= count;
    });
    return list;
}

CapturedJob PrivateScheduler::job(int number)
{
    CapturedJob found;
    waitFor("a print job", [&] {
        const QList<CapturedJob> list = capturedNow();
        const auto at =
            std::find_if(list.begin(), list.end(), [=](const CapturedJob &job) { return job.job == number; });
        if (at == list.end())
            return false;
        found = *at;
        return true;
    });
    return found;
}

QString PrivateScheduler::samplePpd(const QString &name)
{
    const QString path = QStringLiteral(TEST_PPD_DIR "/%1.ppd").arg(name);
    if (!QFile::exists(path))
        qFatal("there is no sample %s", qPrintable(path));
    return path;
}

QString PrivateScheduler::editedPpd(const QString &ppd, const QList<QPair<QByteArray, QByteArray>> &replacements)
{
    QByteArray text = readFile(ppd);
    for (const auto &[before, after] : replacements) {
        if (!text.contains(before))
            qFatal("\"%s\" is not in %s", before.constData(), qPrintable(ppd));
        text.replace(before, after);
    }
    const QString path = temporaryDir.filePath(QStringLiteral("edited-%1.ppd").arg(++editedPpds));
    writeFile(path, text);
    return path;
}

QString PrivateScheduler::commandDir()
{
    return QStringLiteral(TEST_SUPPORT_DIR);
}

QString PrivateScheduler::socket() const
{
    return temporaryDir.filePath("run/cups.sock");
}

pid_t PrivateScheduler::process() const
{
    const pid_t process = readFile(temporaryDir.filePath("pid")).trimmed().toInt();
    if (process <= 1)
        qFatal("no scheduler runs"); // kill() takes such a number for many processes
    return process;
}

void PrivateScheduler::script(const QString &command)
{
    QStringList arguments{command, temporaryDir.path()};
    if (command == "start")
        arguments << QString::number(QCoreApplication::applicationPid());
    run(TEST_SUPPORT_DIR "/private-scheduler", arguments);
}

// Takes the request.
void PrivateScheduler::send(ipp_t *request, const QString &file) const
{
    const Connection connection = connectTo(socket());
    const QByteArray path = QFile::encodeName(file);
    const Request answer(
        cupsDoFileRequest(connection.get(), request, "/admin/", path.isEmpty() ? nullptr : path.constData()),
        &ippDelete);
    if (!answer || ippGetStatusCode(answer.get()) >= IPP_STATUS_REDIRECTION_OTHER_SITE)
        qFatal("the scheduler refuses a request: %s", cupsLastErrorString());
}

QList<CapturedJob> PrivateScheduler::capturedNow() const
{
    static const QRegularExpression folderName(R"(^(.*)-(\d+)$)");
    QList<CapturedJob> list;
    const QDir captured(temporaryDir.filePath("captured"));
    const QStringList folders = captured.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &folder : folders) {
        const QRegularExpressionMatch match = folderName.match(folder);
        const auto part = [&](const char *name) { return readFile(captured.filePath(folder + '/' + name)); };
        CapturedJob job;
        job.queue = match.captured(1);
        job.job = match.captured(2).toInt();
        job.data = part("data");
        job.title = part("title");
        job.user = part("user");
        job.copies = part("copies");
        job.options = part("options");
        job.type = part("type");
        list << job;
    }
    std::sort(list.begin(), list.end(), [](const auto &a, const auto &b) { return a.job < b.job; });
    return list;
}

QByteArray PrivateScheduler::accessLog() const
{
    return readFile(temporaryDir.filePath("log/access_log"));
}
