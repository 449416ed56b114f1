#pragma once

#include "measuring/Result.h"
#include "measuring/Session.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace Drevon::Zalento {

/** A number of the measurement that the operator types, steps or slides. */
struct Field
{
    QString name;
    QString label;
    QString unit;
    double smallest = 0.0;
    double largest = 0.0;
    double step = 1.0;
    int decimals = 0; ///< shown at most
    bool hasSlider = false;
    bool isSetting = false; ///< its number is the value of a kind that is set by eye
    bool movesModel = true; ///< points have to be looked up again
    bool mayBeEmpty = false;
    std::function<std::optional<double>(const Measuring::Session &)> get;
    std::function<void(Measuring::Session &, std::optional<double>)> set;
};

/** The field of this name as @p session shows it; its label and limits depend on the kind. */
Field fieldNamed(const QString &name, const Measuring::Session &session);

/** Names of the fields that the session's kind uses, but for those of the alignment. */
QStringList kindFields(const Measuring::Session &session);

/** Names of the fields that align the model; none for a kind without a model. */
QStringList alignmentFields(const Measuring::Session &session);

/** The field's value as text; empty when it has none. */
QString fieldText(const Field &field, const Measuring::Session &session);

/**
 * Reads a typed number; a decimal comma is understood. Nothing for an empty text that is allowed. A
 * problem is in words for the operator.
 */
Measuring::Result<std::optional<double>> readField(const Field &field, const QString &text);

} // namespace Drevon::Zalento
