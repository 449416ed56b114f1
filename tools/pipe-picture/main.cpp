#include "Options.h"
#include "Render.h"
#include "Truth.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QImageWriter>
#include <QJsonDocument>
#include <QSaveFile>
#include <QTextStream>

using namespace PipePicture;

namespace {

enum ExitCode { Written = 0, WrongUsage = 2, CannotWrite = 3 };

void say(FILE *stream, const QString &text)
{
    QTextStream(stream) << text << Qt::endl;
}

int refuse(int code, const QString &text)
{
    say(stderr, QStringLiteral("pipe-picture: ") + text);
    return code;
}

/** Bytes of the picture file; empty when the format cannot be written. */
QByteArray encoded(const QImage &picture, const Request &request)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    const QByteArray format = QFileInfo(request.pictureFile).suffix().toLower().toLatin1();
    QImageWriter writer(&buffer, format);
    if (format != "png")
        writer.setQuality(request.quality);
    return writer.write(picture) ? bytes : QByteArray();
}

/** Writes the whole file or leaves what was there. */
bool save(const QString &file, const QByteArray &bytes)
{
    QSaveFile target(file);
    return !bytes.isEmpty() && target.open(QIODevice::WriteOnly) &&
           target.write(bytes) == bytes.size() && target.commit();
}

int draw(const Request &request)
{
    const auto cannotWrite = QCoreApplication::translate("PipePicture", "Cannot write %1.");
    for (const QString &file : {request.pictureFile, request.truthFile}) {
        if (!request.force && QFileInfo::exists(file))
            return refuse(CannotWrite, QCoreApplication::translate(
                                           "PipePicture", "%1 exists; --force writes over it.")
                                           .arg(file));
    }
    const QByteArray picture = encoded(renderPicture(request.scene), request);
    if (!save(request.pictureFile, picture))
        return refuse(CannotWrite, cannotWrite.arg(request.pictureFile));
    const QString name = QFileInfo(request.pictureFile).fileName();
    const QByteArray truth = QJsonDocument(truthOf(request.scene, name)).toJson();
    if (!save(request.truthFile, truth))
        return refuse(CannotWrite, cannotWrite.arg(request.truthFile));
    return Written;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("pipe-picture"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZALENTO_VERSION));
    const ParsedOptions options = parseOptions(QCoreApplication::arguments());
    switch (options.action) {
    case ParsedOptions::Action::Draw:
        return draw(options.request);
    case ParsedOptions::Action::ShowHelp:
    case ParsedOptions::Action::ShowVersion:
        say(stdout, options.text);
        return Written;
    case ParsedOptions::Action::Refuse:
        break;
    }
    return refuse(WrongUsage, options.text + QStringLiteral("\nTry pipe-picture --help."));
}
