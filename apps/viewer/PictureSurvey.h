#pragma once

#include <QObject>
#include <QString>
#include <QThreadPool>

namespace Drevon::Zalento {

/** What is known of a picture before it was shown. */
struct PictureFindings
{
    QString problem; ///< with the picture or the session beside it; empty for none
    bool isMeasured = false;
};

/** Looks in the background at pictures and at the sessions that were saved of them. */
class PictureSurvey : public QObject
{
    Q_OBJECT

public:
    PictureSurvey();
    ~PictureSurvey() override;

    /** Reads the start of the picture, and the whole session. */
    void look(const QString &picturePath, const QString &sessionPath);

Q_SIGNALS:
    /** From another thread. */
    void found(const QString &picturePath, const Drevon::Zalento::PictureFindings &findings);

private:
    QThreadPool m_pool;
};

} // namespace Drevon::Zalento

Q_DECLARE_METATYPE(Drevon::Zalento::PictureFindings)
