#pragma once

#include "contracts/ImageFileBackend.h"
#include "frontends/Mailbox.h"
#include "frontends/WorkQueue.h"

#include <QVariantMap>

#include <deque>
#include <functional>

/// Estimates file sizes in the background. The interface asks the same question again and again
/// while a slider moves, so equal questions about one load of an image share one estimate, and the
/// latest ones are kept.
class SizeEstimator {
public:
    struct Question {
        QString uid; ///< load of the image; estimates without one are never shared
        QString filepath;
        QString extension;
        QVariantMap options;

        friend bool operator==(const Question &, const Question &) = default;
    };
    using Answer = std::function<void(const Question &, const WriteResult &)>;

    /// `answer` is called on the owner's thread, later, once for each call of ask.
    explicit SizeEstimator(Answer answer)
        : m_answer(std::move(answer)) {}

    void ask(const std::shared_ptr<ImageFileBackend> &backend, const QVariantMap &imageData,
             const QString &extension, const QVariantMap &options);

private:
    struct Estimate {
        quint64 id = 0;
        Question question;
        int askers = 0; ///< who still wait
        bool done = false;
        WriteResult result;
    };

    void settle(quint64 id, const WriteResult &result);
    void forgetOldest();

    Answer m_answer;
    quint64 m_lastId = 0;
    std::deque<Estimate> m_estimates; ///< oldest first
    Mailbox m_mailbox;
    WorkQueue m_work;
};
