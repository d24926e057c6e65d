#include "frontends/SizeEstimator.h"

#include <algorithm>

namespace {

constexpr std::size_t Kept = 32;

WriteResult estimate(ImageFileBackend &backend, const QVariantMap &imageData, const QString &extension,
                     const QVariantMap &options, const std::stop_token &stop) {
    const auto image = imageData.value(QStringLiteral("image")).value<std::shared_ptr<ImageData>>();
    const QString path = imageData.value(QStringLiteral("filepath")).toString();
    if (!image || image->isNull())
        return {.error = QStringLiteral("There is no picture to estimate the size of.")};
    return backend.estimate({image, path, QString(), imageData, options}, extension, {stop, {}});
}

} // namespace

void SizeEstimator::ask(const std::shared_ptr<ImageFileBackend> &backend, const QVariantMap &imageData,
                        const QString &extension, const QVariantMap &options) {
    const Question question{imageData.value(QStringLiteral("uid")).toString(),
                            imageData.value(QStringLiteral("filepath")).toString(), extension, options};
    const auto known = std::ranges::find(m_estimates, question, &Estimate::question);
    if (known != m_estimates.end() && !question.uid.isEmpty()) {
        if (known->done)
            m_mailbox.post([this, question, result = known->result] { m_answer(question, result); });
        else
            ++known->askers;
        return;
    }
    const quint64 id = ++m_lastId;
    m_estimates.push_back({id, question, 1, false, {}});
    m_work.post([this, id, backend, imageData, extension, options](const std::stop_token &stop) {
        const WriteResult result = estimate(*backend, imageData, extension, options, stop);
        m_mailbox.post([this, id, result] { settle(id, result); });
    });
}

void SizeEstimator::settle(quint64 id, const WriteResult &result) {
    const auto estimate = std::ranges::find(m_estimates, id, &Estimate::id);
    const Question question = estimate->question;
    const int askers = estimate->askers;
    if (result.error.isEmpty()) {
        estimate->done = true;
        estimate->result = result;
        forgetOldest();
    } else {
        m_estimates.erase(estimate); // the next question tries again
    }
    for (int i = 0; i < askers; ++i)
        m_answer(question, result);
}

void SizeEstimator::forgetOldest() {
    while (m_estimates.size() > Kept && m_estimates.front().done)
        m_estimates.pop_front();
}
