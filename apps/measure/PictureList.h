#pragma once

#include "measuring/Result.h"

#include <QIODevice>
#include <QString>
#include <QStringList>
#include <QVector>

namespace Drevon::Zalento::Apps {

/** One picture to measure. */
struct PictureRequest
{
    QString path; ///< of a picture or, when isSession is set, of a session
    bool isSession = false;
    QString problem; ///< why there is nothing to measure; else empty
};

/** The names in a list, one a line; empty lines are skipped. */
Measuring::Result<QStringList> readNames(QIODevice &list);

/**
 * The pictures that the names mean, in their order. A folder stands for the pictures in it and its
 * folders, sorted by path, without those that this program wrote.
 */
QVector<PictureRequest> listPictures(const QStringList &names, bool recursive);

} // namespace Drevon::Zalento::Apps
