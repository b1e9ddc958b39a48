// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "cups/OptionsFile.h"

#include "cups/Scheduler.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QSaveFile>

#include <pwd.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstring>
#include <memory>
#include <optional>

namespace {

// The length of libcups' buffer for one line, its terminator included.
constexpr std::size_t lineBufferSize = 8192;

struct FreeDests
{
    int count = 0;
    cups_dest_t *dests = nullptr;

    FreeDests() = default;
    ~FreeDests() { cupsFreeDests(count, dests); }
    FreeDests(const FreeDests &) = delete;
    FreeDests &operator=(const FreeDests &) = delete;
};

// One destination's line, and what libcups has to read from it.
struct Line
{
    QByteArray text;
    QList<const cups_option_t *> options;
};

QByteArray userFolder()
{
    QByteArray home = qgetenv("HOME");
    if (home.isNull()) {
        if (const passwd *user = getpwuid(getuid()))
            home = user->pw_dir;
    }
    return home + "/.cups";
}

// ----- which options to save -----

QByteArray valueText(ipp_attribute_t *attribute)
{
    // Enumerations are saved by number; ippAttributeString() would name them.
    if (ippGetValueTag(attribute) == IPP_TAG_ENUM) {
        QByteArray numbers;
        for (int i = 0; i < ippGetCount(attribute); ++i)
            numbers += (i ? "," : "") + QByteArray::number(ippGetInteger(attribute, i));
        return numbers;
    }
    QByteArray text(static_cast<int>(ippAttributeString(attribute, nullptr, 0)) + 1, '\0');
    ippAttributeString(attribute, text.data(), static_cast<std::size_t>(text.size()));
    text.chop(1);
    return text;
}

void addServerOption(ipp_attribute_t *attribute, cups_dest_t *dest)
{
    QByteArray name = ippGetName(attribute);
    if (name.endsWith("-default"))
        name.chop(static_cast<int>(std::strlen("-default")));
    else if (name != "printer-mandatory-job-attributes")
        return;
    dest->num_options =
        cupsAddOption(name.constData(), valueText(attribute).constData(), dest->num_options, &dest->options);
}

// The options that the scheduler itself gives each destination. Empty when it does not answer: then all options are saved,
// which is more than need be but loses none.
void fetchServerOptions(FreeDests &server)
{
    static const char *const wanted[] = {"printer-name", "printer-defaults", "job-sheets-default",
                                         "printer-mandatory-job-attributes"};
    const auto answer = std::make_shared<std::unique_ptr<ipp_t, decltype(&ippDelete)>>(nullptr, &ippDelete);
    const bool isAnswered = Scheduler::ask([answer](http_t *http) {
        ipp_t *request = ippNewRequest(IPP_OP_CUPS_GET_PRINTERS);
        ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                      static_cast<int>(std::size(wanted)), nullptr, wanted);
        ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
        answer->reset(cupsDoRequest(http, request, "/"));
    });
    if (!isAnswered)
        return;
    const auto &response = *answer;
    if (!response)
        return;

    // The attributes of one printer follow each other; a separator without a name stands between two printers.
    cups_dest_t current = {};
    const auto finish = [&server, &current] {
        if (current.name) {
            server.count = cupsAddDest(current.name, nullptr, server.count, &server.dests);
            cups_dest_t *dest = cupsGetDest(current.name, nullptr, server.count, server.dests);
            for (int i = 0; i < current.num_options; ++i)
                dest->num_options =
                    cupsAddOption(current.options[i].name, current.options[i].value, dest->num_options, &dest->options);
        }
        cupsFreeOptions(current.num_options, current.options);
        current = {};
    };
    for (ipp_attribute_t *a = ippFirstAttribute(response.get()); a; a = ippNextAttribute(response.get()))
        if (!ippGetName(a))
            finish();
        else if (ippGetGroupTag(a) != IPP_TAG_PRINTER)
            continue;
        else if (!std::strcmp(ippGetName(a), "printer-name"))
            current.name = const_cast<char *>(ippGetString(a, 0, nullptr));
        else
            addServerOption(a, &current);
    finish();
}

// Whether the option describes the printer (its state, its place, ...) and is never saved. libcups' own table of these is
// not public, but its encoder goes by it.
bool isPrinterAttribute(const cups_option_t &option)
{
    const std::unique_ptr<ipp_t, decltype(&ippDelete)> encoded(ippNew(), &ippDelete);
    cups_option_t copy = option;
    cupsEncodeOptions2(encoded.get(), 1, &copy, IPP_TAG_PRINTER);
    return ippFirstAttribute(encoded.get()) != nullptr;
}

bool isServerOption(const cups_option_t &option, const cups_dest_t *server)
{
    const char *value = server ? cupsGetOption(option.name, server->num_options, server->options) : nullptr;
    return value && !std::strcmp(value, option.value);
}

// ----- the syntax -----

// A value in the form in which libcups reads it back: quoted unless it is plain, and with a backslash before each "#", which
// would else begin a comment.
QByteArray valueSyntax(const QByteArray &value)
{
    QByteArray escaped;
    bool plain = true;
    for (const char c : value) {
        if (std::strchr("\"'\\#", c))
            escaped += '\\';
        plain = plain && !std::strchr("\"'\\#{} \t\n\v\f\r", c);
        escaped += c;
    }
    return plain ? value : '"' + escaped + '"';
}

Line compose(const cups_dest_t &dest, const cups_dest_t *server)
{
    Line line;
    for (int i = 0; i < dest.num_options; ++i) {
        const cups_option_t &option = dest.options[i];
        if (!isPrinterAttribute(option) && !isServerOption(option, server))
            line.options.append(&option);
    }
    if (line.options.isEmpty() && !dest.is_default)
        return line;

    line.text = dest.is_default ? "Default " : "Dest ";
    line.text += dest.name;
    if (dest.instance)
        line.text.append('/').append(dest.instance);
    for (const cups_option_t *option : std::as_const(line.options))
        line.text.append(' ').append(option->name).append('=').append(valueSyntax(option->value));
    return line;
}

// Whether libcups reads from this line what was put into it; asked of libcups itself.
bool readsBack(const Line &line)
{
    const int fd = memfd_create("lpoptions", MFD_CLOEXEC);
    if (fd < 0 || write(fd, line.text.constData(), static_cast<std::size_t>(line.text.size())) != line.text.size()) {
        close(fd);
        return false;
    }
    lseek(fd, 0, SEEK_SET);
    cups_file_t *file = cupsFileOpenFd(fd, "r");
    char buffer[lineBufferSize];
    char *arguments = nullptr;
    int lineNumber = 0;
    cups_option_t *options = nullptr;
    int count = 0;
    if (cupsFileGetConf(file, buffer, sizeof buffer, &arguments, &lineNumber) && arguments) {
        const char *afterName = std::strchr(arguments, ' ');
        count = cupsParseOptions(afterName, 0, &options);
    }
    bool same = count == line.options.size() && !cupsFileGetConf(file, buffer, sizeof buffer, &arguments, &lineNumber);
    for (const cups_option_t *option : line.options) {
        const char *value = cupsGetOption(option->name, count, options);
        same = same && value && !std::strcmp(value, option->value);
    }
    cupsFreeOptions(count, options);
    cupsFileClose(file);
    return same;
}

// ----- the file -----

// Whether a line of the earlier file is the entry of one of these destinations, which is written anew.
bool isEntryOf(const QByteArray &rawLine, const cups_dest_t *dests, int count)
{
    const QList<QByteArray> words = rawLine.simplified().split(' ');
    const QByteArray kind = words.at(0).toLower();
    if (words.size() < 2 || (kind != "dest" && kind != "default"))
        return false;
    const QList<QByteArray> parts = words.at(1).split('/');
    const char *instance = parts.size() > 1 ? parts.at(1).constData() : nullptr;
    return cupsGetDest(parts.at(0).constData(), instance, count, const_cast<cups_dest_t *>(dests)) != nullptr;
}

// The lines of the earlier file that are not written anew; nothing when they cannot be read and so would be lost.
std::optional<QByteArray> otherEntries(const cups_dest_t *dests, int count)
{
    QFile file(OptionsFile::path());
    if (!QFileInfo::exists(file.fileName())) // the file's own exists() is true for a link to nothing
        return QByteArray();
    // What the user put there instead of a file, a link to /dev/null say, is not for us to replace.
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QByteArray kept;
    while (!file.atEnd()) {
        QByteArray line = file.readLine();
        if (line.trimmed().isEmpty() || isEntryOf(line, dests, count))
            continue;
        if (!line.endsWith('\n'))
            line += '\n';
        kept += line;
    }
    if (file.error() != QFileDevice::NoError)
        return std::nullopt;
    return kept;
}

bool replaceFile(const QByteArray &content)
{
    mkdir(userFolder().constData(), 0700);
    const QString path = OptionsFile::path();
    struct stat earlier = {};
    const bool existed = stat(QFile::encodeName(path).constData(), &earlier) == 0;

    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    // A file that belongs to somebody else stays theirs. Only the superuser can give it back, and only he needs to.
    if (existed && (earlier.st_uid != geteuid() || earlier.st_gid != getegid())
        && fchown(file.handle(), earlier.st_uid, earlier.st_gid) == 0)
        fchmod(file.handle(), earlier.st_mode & 07777);
    // commit() alone would notice neither what could not be flushed nor what the disk then had no room for.
    return file.write(content) == content.size() && file.flush() && fsync(file.handle()) == 0 && file.commit();
}

} // namespace

QString OptionsFile::path()
{
    return QFile::decodeName(userFolder() + "/lpoptions");
}

bool OptionsFile::save(const cups_dest_t *dests, int count)
{
    FreeDests server;
    fetchServerOptions(server);

    QByteArray content;
    for (int i = 0; i < count; ++i) {
        const Line line = compose(dests[i], cupsGetDest(dests[i].name, nullptr, server.count, server.dests));
        if (line.text.isEmpty())
            continue;
        if (!readsBack(line))
            return false;
        content += line.text + '\n';
    }
    // Kept entries stand last: should the user's default printer be listed again, libcups takes the last default.
    const std::optional<QByteArray> kept = otherEntries(dests, count);
    return kept && replaceFile(content + *kept);
}
