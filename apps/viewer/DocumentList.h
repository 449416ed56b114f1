#pragma once

#include "Document.h"
#include "Guidance.h"
#include "PictureProvider.h"
#include "PictureSurvey.h"
#include "Preferences.h"

#include "measuring/Picture.h"
#include "measuring/Result.h"

#include <QAbstractListModel>
#include <QHash>
#include <QImage>
#include <QSize>
#include <QStringList>
#include <QUrl>

#include <memory>
#include <optional>
#include <vector>

namespace Drevon::Zalento {

/**
 * The pictures that are opened, each with its measurement, and which of them is on view.
 *
 * Showing a picture loads it and the session beside it. What cannot be read is told to the guidance
 * and is not overwritten without a question.
 */
class DocumentList : public QAbstractListModel
{
    Q_OBJECT

    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(int unsavedCount READ unsavedCount NOTIFY unsavedCountChanged)
    /** Index of the picture on view, -1 for none. The picture's properties change with it. */
    Q_PROPERTY(int currentIndex READ currentIndex NOTIFY currentChanged)
    Q_PROPERTY(bool hasPicture READ hasPicture NOTIFY currentChanged)
    /** As it is shown: without the distortion of the session's lens. */
    Q_PROPERTY(QImage picture READ picture NOTIFY pictureChanged)
    Q_PROPERTY(QSize pictureSize READ pictureSize NOTIFY currentChanged)
    /** That the measuring item is shown with, see measuring/Replay.h. */
    Q_PROPERTY(double overlayScale READ overlayScale NOTIFY currentChanged)
    Q_PROPERTY(QString pictureSource READ pictureSource NOTIFY pictureChanged)
    Q_PROPERTY(QString pictureName READ pictureName NOTIFY currentChanged)
    Q_PROPERTY(QString pictureProblem READ pictureProblem NOTIFY currentChanged)

public:
    enum Role {
        NumberRole = Qt::UserRole, ///< from 1
        NameRole,
        PathRole,
        ModifiedRole,
        MeasuredRole,
        ProblemRole,
        ThumbnailRole
    };

    DocumentList(Preferences &preferences, Guidance &guidance);
    ~DocumentList() override;

    /** Hands the picture to the scene; the engine owns it. */
    void setPictureProvider(PictureProvider *provider) { m_provider = provider; }

    int count() const { return static_cast<int>(m_documents.size()); }
    int unsavedCount() const { return m_unsavedCount; }
    int currentIndex() const { return m_index; }
    bool hasPicture() const { return m_picture.has_value(); }
    QImage picture() const { return m_shownPicture; }
    QSize pictureSize() const { return m_shownPicture.size(); }
    double overlayScale() const;
    QString pictureSource() const;
    QString pictureName() const;
    QString pictureProblem() const;

    /** Null without one. */
    Document *current() const;
    Document &at(int index) { return *m_documents[static_cast<std::size_t>(index)]; }

    /** A session that goes on with what the one on view knows of camera and pipe. */
    Measuring::Session newSession() const;
    /** The same for a picture, without a lens that is not its. */
    Measuring::Session newSession(const Measuring::PictureIdentity &picture) const;

    /**
     * Opens pictures, session files, and the pictures in folders; shows the first of them. Of films
     * the last one is opened.
     */
    Q_INVOKABLE void openPaths(const QStringList &paths);
    Q_INVOKABLE void openUrls(const QList<QUrl> &urls);
    Q_INVOKABLE void show(int index);
    /** Of files that can be opened: "*.jpg", ... */
    Q_INVOKABLE QStringList namePatterns() const;
    Q_INVOKABLE void showNext() { show(m_index + 1); }
    Q_INVOKABLE void showPrevious() { show(m_index - 1); }

    /** To be called when the session on view has changed: its lens may be another one. */
    void showLens();

    /** To be called when a document was changed or saved. */
    void noteModified();

    /** To be called when a picture could not be read in the background. */
    void noteProblem(const QString &picturePath, const QString &problem);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();
    void unsavedCountChanged();
    /** Another picture is about to be shown: what is under way ends. */
    void currentAboutToChange();
    void currentChanged();
    void pictureChanged();
    void filmOpened(const QString &path);

private:
    void openPictures(const QStringList &paths);
    Measuring::Result<int> append(const QString &path);
    int indexOf(const QString &picturePath) const;
    void loadPicture(Document &document);
    void showPicture();
    void startSession(Document &document, const Measuring::Session &fresh);
    void loadSession(Document &document);
    void takeOverPicture(Document &document);
    void fitAlignment(Document &document);
    void placePoints(Document &document);
    void noteFindings(const QString &picturePath, const PictureFindings &findings);
    void noteStateOf(int index);

    Preferences &m_preferences;
    Guidance &m_guidance;
    PictureProvider *m_provider = nullptr;
    std::vector<std::unique_ptr<Document>> m_documents;
    QHash<QString, int> m_indices; ///< by absolute paths
    int m_index = -1;
    int m_unsavedCount = 0;
    std::optional<Measuring::Picture> m_picture;
    QImage m_shownPicture;
    std::optional<Measuring::Lens> m_shownLens;
    int m_pictureNumber = 0;
    PictureSurvey m_survey;
};

/** When a file was last changed; invalid for one that is not there. */
QDateTime stampOf(const QString &path);

/** A path without its folders, for messages. */
QString shortName(const QString &path);

} // namespace Drevon::Zalento
