#pragma once

#include "DocumentList.h"

#include "measuring/Film.h"

#include <QImage>
#include <QObject>
#include <QString>
#include <QThread>

#include <memory>
#include <optional>

namespace Drevon::Zalento {

/**
 * A film in which the operator looks for frames to measure. A frame that is taken becomes a picture
 * beside the film, with a session that knows film, time and counter.
 *
 * Films are read and decoded in a thread of their own; of the frames that are asked for meanwhile
 * the last one is shown.
 */
class FilmBrowser : public QObject
{
    Q_OBJECT

    /** There is a film to go back to: an open one, or the one that the picture on view is from. */
    Q_PROPERTY(bool isAvailable READ isAvailable NOTIFY isAvailableChanged)
    Q_PROPERTY(QString name READ name NOTIFY filmChanged)
    Q_PROPERTY(int frameCount READ frameCount NOTIFY filmChanged)
    /** The film stands where the picture does. */
    Q_PROPERTY(bool isShown READ isShown WRITE setIsShown NOTIFY isShownChanged)
    /** The number of the frame on view, from 0; setting it asks for another one. */
    Q_PROPERTY(int frame READ frame WRITE show NOTIFY frameChanged)
    /** When it is shown in the film: "2:05.480". */
    Q_PROPERTY(QString timeText READ timeText NOTIFY frameChanged)
    Q_PROPERTY(QString source READ source NOTIFY frameChanged)
    /** Why there is no picture of it; empty when there is one. */
    Q_PROPERTY(QString problem READ problem NOTIFY frameChanged)

public:
    FilmBrowser(DocumentList &documents, Preferences &preferences, Guidance &guidance);
    ~FilmBrowser() override;

    bool isAvailable() const { return isOpen() || filmOfPicture(); }
    QString name() const { return shortName(m_path); }
    int frameCount() const { return m_frameCount; }
    bool isShown() const { return m_isShown; }
    void setIsShown(bool shown);
    int frame() const { return m_frame.number; }
    QString timeText() const;
    QString source() const;
    QString problem() const { return m_problem; }

    /** Where the scene gets the frame from; belongs to the scene. */
    void setProvider(PictureProvider *provider) { m_provider = provider; }

    /** @param frame that is shown first */
    void open(const QString &path, int frame = 0);
    /** Shows the film of the picture on view at its frame; an open one where it was. */
    Q_INVOKABLE void goBack();
    /** Shows the frame of this number, or the nearest that there is. */
    void show(int number);
    /**
     * Makes the frame on view a picture, and shows that.
     * @param counter metres that the picture's counter shows; may be empty
     * @return what is wrong with the counter or the file; empty when all went well
     */
    Q_INVOKABLE QString take(const QString &counter);

Q_SIGNALS:
    void filmChanged();
    void isAvailableChanged();
    void isShownChanged();
    void frameChanged();

private:
    using Film = std::shared_ptr<Measuring::Film>; // decodes in the thread alone

    bool isOpen() const { return m_frameCount > 0; }
    std::optional<Measuring::FilmFrame> filmOfPicture() const;
    void opened(const QString &path, const Film &film, int frame);
    void request(int number);
    void shown(const Measuring::FilmFrame &frame, const Measuring::Result<QImage> &image);
    Measuring::Outcome writePicture(const QString &path) const;
    Measuring::Outcome writeSession(const QString &picturePath,
                                    std::optional<double> counterM) const;

    DocumentList &m_documents;
    Preferences &m_preferences;
    Guidance &m_guidance;
    PictureProvider *m_provider = nullptr;
    QString m_path;
    int m_frameCount = 0;
    bool m_isShown = false;
    Measuring::FilmFrame m_frame; ///< on view
    QImage m_image;
    QString m_problem;
    int m_imageNumber = 0;
    bool m_isBusy = false;
    std::optional<int> m_wanted; ///< while another one is decoded

    Film m_film;
    QThread m_thread;
    QObject m_reader; ///< in the thread
};

} // namespace Drevon::Zalento
