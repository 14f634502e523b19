#pragma once

#include <QString>

#include <utility>
#include <variant>

namespace velm
{

// Why something was refused: one sentence for the user, without a full stop.
struct Refusal {
    QString sentence;

    bool operator==(const Refusal &) const = default;
};

// A value, or the sentence that says why there is none.
template <typename T>
class Result
{
public:
    Result(T value) : m_content(std::move(value)) {}
    Result(Refusal refusal) : m_content(std::move(refusal)) {}

    explicit operator bool() const { return std::holds_alternative<T>(m_content); }
    const T &operator*() const { return std::get<T>(m_content); }
    const T *operator->() const { return &std::get<T>(m_content); }
    const QString &sentence() const { return std::get<Refusal>(m_content).sentence; }

private:
    std::variant<T, Refusal> m_content;
};

// The result of an action that gives nothing back.
using Outcome = Result<std::monostate>;
inline Outcome done() { return Outcome(std::monostate{}); }

}
