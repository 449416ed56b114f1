#include "measuring/Report.h"

#include "measuring/Measurands.h"
#include "measuring/Picture.h"
#include "measuring/ReportDocument.h"
#include "measuring/ReportPages.h"
#include "measuring/ReportPicture.h"
#include "measuring/ReportSection.h"
#include "measuring/ReportText.h"
#include "measuring/SessionLens.h"
#include "measuring/Text.h"

#include <QSaveFile>

#include <algorithm>

namespace Drevon::Zalento::Measuring {

namespace {

// Of paper, in millimetres.
constexpr double largestPictureHeightMM = 110.0;
constexpr QSizeF onlySectionMM(78.0, 83.0);
constexpr QSizeF sectionMM(52.0, 61.0); ///< of several, two of which stand side by side

/** Notices a full disk: it takes a part of what is written, after which the writer of PDF stops
    without a word. */
class WholeFile : public QSaveFile
{
protected:
    qint64 writeData(const char *data, qint64 size) override
    {
        qint64 done = 0;
        while (done < size) {
            const qint64 written = QSaveFile::writeData(data + done, size - done);
            if (written <= 0) {
                return -1;
            }
            done += written;
        }
        return done;
    }
};

// As it was measured: undistorted where its lens is known.
Result<Picture> loadShown(const ReportPicture &picture)
{
    Result<Picture> loaded = loadPicture(picture.path);
    const std::optional<Session> &session = picture.measurements.first().session;
    if (!loaded || !session) {
        return loaded;
    }
    const Result<QImage> shown = shownPicture(*session, loaded->image);
    if (!shown) {
        return shown.problem();
    }
    loaded->image = *shown;
    return loaded;
}

// An overlay would show a number that nobody set.
bool hasOverlay(const ReportMeasurement &measurement)
{
    return measurement.session && measurement.values.status != Status::NotSet;
}

// The first one's overlay has the pipe, which is common to all.
void paintPictureWithOverlays(QPainter &painter, const QRectF &box, const QImage &image,
                              const ReportPicture &picture)
{
    const QVector<ReportMeasurement> &all = picture.measurements;
    paintPicture(painter, box, reportDotsPerMM, image);
    const auto first = std::find_if(all.begin(), all.end(), hasOverlay);
    if (first != all.end()) {
        paintOverlay(painter, box, reportDotsPerMM, *first->session,
                     all.size() > 1 ? Overlays::All : Overlays::AtHand);
    }
}

bool hasChanged(const ReportPicture &picture, const Picture &loaded)
{
    return std::any_of(picture.measurements.begin(), picture.measurements.end(),
                       [&loaded](const ReportMeasurement &measurement) {
                           const QByteArray &measured = measurement.values.identity.sha256;
                           return !measured.isEmpty() && measured != loaded.identity.sha256;
                       });
}

// What is to be known of the picture that is shown, or why there is none.
QString noteOn(const ReportPicture &picture, const Result<Picture> &loaded)
{
    const QVector<ReportMeasurement> &measurements = picture.measurements;
    if (!loaded) {
        const QString reason = loaded.problem().textAfter(picture.path);
        return reason == measurements.first().values.message ? QString() : reason;
    }
    if (hasChanged(picture, *loaded)) {
        return Text::tr("The picture has changed since it was measured.");
    }
    const bool isOneUnset =
        std::any_of(measurements.begin(), measurements.end(), [](const ReportMeasurement &one) {
            return one.values.status == Status::NotSet;
        });
    return isOneUnset ? Text::tr("Without its overlay: nobody has set what it shows.") : QString();
}

QVector<ReportDrawing> sectionsOf(const ReportPicture &picture)
{
    QVector<const ReportMeasurement *> modelled;
    for (const ReportMeasurement &measurement : picture.measurements) {
        if (measurement.session && infoOf(measurement.session->kind).has(Uses::Model)) {
            modelled.append(&measurement);
        }
    }
    const bool isOnly = modelled.size() == 1;
    QVector<ReportDrawing> drawings;
    for (const ReportMeasurement *measurement : modelled) {
        const auto paint = [measurement, isOnly](QPainter &painter, const QRectF &box) {
            paintSection(painter, box, reportDotsPerMM, *measurement->session,
                         measurement->values.status == Status::Measured,
                         isOnly ? QString() : measurement->session->name);
        };
        drawings.append({isOnly ? onlySectionMM : sectionMM, paint});
    }
    return drawings;
}

} // namespace

QVector<ReportMeasurement> reportMeasurements(const QVector<PictureValues> &values,
                                              const std::optional<Session> &session)
{
    const bool areAll = session && values.size() == measurandsOf(*session).size();
    QVector<ReportMeasurement> measurements;
    for (int i = 0; i < values.size(); ++i) {
        measurements.append({values[i], areAll ? withMeasurand(*session, i) : session});
    }
    return measurements;
}

class ReportWriter::Implementation
{
public:
    Outcome open(const QString &path, Overwrite overwrite)
    {
        m_file.setFileName(path);
        if (const Outcome problem = openForReplacing(m_file, overwrite)) {
            return problem;
        }
        m_pages.emplace(m_file);
        return {};
    }

    void addOverview(const Report &report)
    {
        ReportDocument document(*m_pages);
        document.add(overviewHtml(report));
        document.print();
    }

    void addPage(const Report &report, int index)
    {
        const ReportPicture &picture = report.pictures[index];
        const Result<Picture> loaded = loadShown(picture);
        ReportDocument document(*m_pages);
        document.add(headingHtml(picture, index + 1));
        if (loaded) {
            document.add(pictureDrawing(picture, loaded->image));
        }
        const QString note = noteOn(picture, loaded);
        if (!note.isEmpty()) {
            document.add(noteHtml(note));
        }
        document.add(valuesHtml(picture));
        document.addBeside(detailsHtml(picture, report.record), sectionsOf(picture));
        document.print();
    }

    Outcome finish()
    {
        m_pages->end();
        return replaceWith(m_file);
    }

private:
    ReportDrawing pictureDrawing(const ReportPicture &picture, const QImage &image) const
    {
        const QSizeF room(m_pages->size().width() / reportDotsPerMM, largestPictureHeightMM);
        const auto paint = [&picture, &image](QPainter &painter, const QRectF &box) {
            paintPictureWithOverlays(painter, box, image, picture);
        };
        return {sizeOnPaper(image.size(), room), paint};
    }

    WholeFile m_file;
    std::optional<ReportPages> m_pages;
};

ReportWriter::ReportWriter()
    : m_implementation(std::make_unique<Implementation>())
{}

ReportWriter::~ReportWriter() = default;

Outcome ReportWriter::open(const QString &path, Overwrite overwrite)
{
    return m_implementation->open(path, overwrite);
}

void ReportWriter::addOverview(const Report &report)
{
    m_implementation->addOverview(report);
}

void ReportWriter::addPage(const Report &report, int picture)
{
    m_implementation->addPage(report, picture);
}

Outcome ReportWriter::finish()
{
    return m_implementation->finish();
}

} // namespace Drevon::Zalento::Measuring
