#pragma once

#include <QString>

#include <optional>
#include <utility>
#include <variant>

namespace Drevon::Zalento::Measuring {

/** Why something could not be done, for people. */
struct Problem
{
    QString place; ///< the file, field or option that is meant; may be empty
    QString what;  ///< what was expected and what was found there

    /** "place: what". */
    QString text() const
    {
        return place.isEmpty() ? what : QStringLiteral("%1: %2").arg(place, what);
    }

    /** The same where @p named was told before it, which is not repeated. */
    QString textAfter(const QString &named) const { return place == named ? what : text(); }

    /** The same problem inside of @p outer, such as a field's in its file. */
    Problem in(const QString &outer) const { return {outer, text()}; }
};

/** What a function returns that can fail: its value, or the problem. */
template <typename Value>
class [[nodiscard]] Result
{
public:
    /** It worked; implicit, so that a function returns its value. */
    Result(Value value)
        : m_content(std::move(value))
    {}
    /** It did not; implicit, so that a function returns its problem. */
    Result(Problem problem)
        : m_content(std::move(problem))
    {}

    /** True with a value. */
    explicit operator bool() const { return std::holds_alternative<Value>(m_content); }

    /** The value; there must be one. */
    ///@{
    const Value &value() const { return std::get<Value>(m_content); }
    Value &value() { return std::get<Value>(m_content); }
    const Value &operator*() const { return value(); }
    Value &operator*() { return value(); }
    const Value *operator->() const { return &value(); }
    Value *operator->() { return &value(); }
    ///@}

    /** Why there is no value; there must be none. */
    const Problem &problem() const { return std::get<Problem>(m_content); }

private:
    std::variant<Value, Problem> m_content;
};

/** What an operation without a result returns: nothing when all went well. */
using Outcome = std::optional<Problem>;

} // namespace Drevon::Zalento::Measuring
