#include "PictureSurvey.h"

#include "Document.h"

#include "measuring/Picture.h"
#include "measuring/SessionFile.h"

#include <QFileInfo>
#include <QRunnable>

namespace Drevon::Zalento {

namespace {

PictureFindings findingsOn(const QString &picturePath, const QString &sessionPath)
{
    PictureFindings findings;
    if (QFileInfo::exists(sessionPath)) {
        const auto session = Measuring::loadSession(sessionPath);
        findings.isMeasured = session && isMeasured(*session);
        findings.problem = session ? QString() : session.problem().text();
    }
    if (const Measuring::Outcome problem = Measuring::checkPicture(picturePath)) {
        findings.problem = problem->textAfter(picturePath);
    }
    return findings;
}

} // namespace

PictureSurvey::PictureSurvey()
{
    qRegisterMetaType<PictureFindings>();
    m_pool.setMaxThreadCount(1);
}

// What was not begun is not waited for.
PictureSurvey::~PictureSurvey()
{
    m_pool.clear();
    m_pool.waitForDone();
}

void PictureSurvey::look(const QString &picturePath, const QString &sessionPath)
{
    m_pool.start(QRunnable::create([this, picturePath, sessionPath] {
        Q_EMIT found(picturePath, findingsOn(picturePath, sessionPath));
    }));
}

} // namespace Drevon::Zalento
