#include "options.h"

#include "language.h"
#include "style/theme.h"

#include <QCommandLineParser>
#include <QDir>
#include <QRegularExpression>
#include <QStandardPaths>

namespace pendant {

namespace {

const QString plugins = QStringLiteral("plugins");
const QString tour = QStringLiteral("tour");
const QString work = QStringLiteral("work");
const QString cell = QStringLiteral("cell");
const QString size = QStringLiteral("size");
const QString languageOption = QStringLiteral("language");
const QString themeOption = QStringLiteral("theme");

QString absolute(const QString& path) {
    return QDir::cleanPath(QDir().absoluteFilePath(path));
}

// "1280x800"; an invalid size for anything else or less than can be laid out.
QSize sizeOf(const QString& text) {
    const auto match = QRegularExpression(QStringLiteral("^(\\d{1,5})x(\\d{1,5})$")).match(text);
    const QSize result(match.captured(1).toInt(), match.captured(2).toInt());
    return result.width() >= 800 && result.height() >= 480 ? result : QSize();
}

} // namespace

Options OptionReader::read(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(tr("A robot teach pendant with its plugins, without a robot."));
    parser.addOptions({
        {plugins, tr("Load the plugins (*.so) of this folder. May be given several times."), tr("folder")},
        {tour, tr("Walk all pages, leave pictures and a transcript in this folder, and end."), tr("folder")},
        {work, tr("The folder in which the pendant keeps logs, settings and projects."), tr("folder")},
        {cell, tr("The cell that the virtual controller plays, a JSON file; without it the one that is built in."),
         tr("file")},
        {size, tr("Size of the window in pixels, 800x480 or more."), QStringLiteral("WxH"), QStringLiteral("1280x800")},
        {languageOption, tr("Language: %1.").arg(Language::codes().join(QStringLiteral(", "))), tr("code")},
        {themeOption, tr("Appearance: %1.").arg(Theme::names().join(QStringLiteral(", "))), tr("name")},
    });
    const QCommandLineOption help = parser.addHelpOption();

    Options options;
    if (!parser.parse(arguments))
        options.error = parser.errorText();
    if (parser.isSet(help))
        options.help = parser.helpText();
    const QStringList extra = parser.positionalArguments();
    // "--plugins a b" names two folders.
    for (const QString& folder : parser.values(plugins) + (parser.isSet(plugins) ? extra : QStringList()))
        options.pluginFolders.append(absolute(folder));
    if (parser.isSet(tour))
        options.tourFolder = absolute(parser.value(tour));
    options.workFolder = parser.isSet(work) ? absolute(parser.value(work))
                                            : QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    if (parser.isSet(cell))
        options.cellFile = absolute(parser.value(cell));
    options.size = sizeOf(parser.value(size));
    options.language = parser.value(languageOption);
    options.theme = parser.value(themeOption);
    check(parser.isSet(plugins) ? QStringList() : extra, options);
    return options;
}

void OptionReader::check(const QStringList& extra, Options& options) {
    if (!options.error.isEmpty())
        return;
    if (!extra.isEmpty())
        options.error = tr("“%1” is no option. A folder of plugins is named with --plugins.").arg(extra.first());
    else if (!options.size.isValid())
        options.error = tr("--size takes width and height in pixels, 800x480 or more, such as 1280x800.");
    else if (!options.language.isEmpty() && !Language::codes().contains(options.language))
        options.error = tr("--language takes one of: %1.").arg(Language::codes().join(QStringLiteral(", ")));
    else if (!options.theme.isEmpty() && !Theme::names().contains(options.theme))
        options.error = tr("--theme takes one of: %1.").arg(Theme::names().join(QStringLiteral(", ")));
}

} // namespace pendant
