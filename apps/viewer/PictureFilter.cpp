#include "PictureFilter.h"

#include "DocumentList.h"

namespace Drevon::Zalento {

PictureFilter::PictureFilter(QObject *parent)
    : QSortFilterProxyModel(parent)
{}

void PictureFilter::setText(const QString &text)
{
    const QString trimmed = text.trimmed();
    if (trimmed != m_text) {
        m_text = trimmed;
        invalidateFilter();
        Q_EMIT changed();
    }
}

void PictureFilter::setState(State state)
{
    if (state != m_state) {
        m_state = state;
        invalidateFilter();
        Q_EMIT changed();
    }
}

int PictureFilter::rowOf(int picture) const
{
    return sourceModel() ? mapFromSource(sourceModel()->index(picture, 0)).row() : -1;
}

int PictureFilter::firstPicture() const
{
    const int numbered = rowOf(m_text.toInt() - 1);
    return mapToSource(index(std::max(0, numbered), 0)).row();
}

bool PictureFilter::filterAcceptsRow(int row, const QModelIndex &parent) const
{
    const QModelIndex picture = sourceModel()->index(row, 0, parent);
    return hasState(picture) && hasText(picture);
}

bool PictureFilter::hasText(const QModelIndex &picture) const
{
    return picture.data(DocumentList::NameRole).toString().contains(m_text, Qt::CaseInsensitive) ||
           m_text.toInt() == picture.row() + 1;
}

bool PictureFilter::hasState(const QModelIndex &picture) const
{
    switch (m_state) {
    case All:
        break;
    case Measured:
        return picture.data(DocumentList::MeasuredRole).toBool();
    case NotMeasured:
        return !picture.data(DocumentList::MeasuredRole).toBool();
    case Unsaved:
        return picture.data(DocumentList::ModifiedRole).toBool();
    case Trouble:
        return !picture.data(DocumentList::ProblemRole).toString().isEmpty();
    }
    return true;
}

} // namespace Drevon::Zalento
