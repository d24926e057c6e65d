#pragma once

#include <QString>

#include <memory>
#include <stop_token>
#include <vector>

/// A weight file, ready to run. Safe to use from several threads.
class Network {
public:
    /// Reads the file and tries it on a few pixels; without success nothing, and `error` names the
    /// file. `conditions`: how many values it takes.
    static std::shared_ptr<const Network> load(const QString &path, int scale, int conditions,
                                               QString *error);
    ~Network();

    /// `image`: planes R, G and B of width x height samples one behind the other; both sides are
    /// multiples of Alignment. `result`: the same, `scale` times as wide and high. Returns an error text
    /// that names the file; unfinished, without one, once a stop is requested.
    QString run(const float *image, int width, int height, const std::vector<float> &conditions,
                float *result, const std::stop_token &stop) const;

    /// Gives back the working memory that all networks keep between runs.
    void releaseMemory() const;

    static constexpr int Alignment = 4;

private:
    struct Session;
    Network(const QString &name, int scale, std::unique_ptr<Session> session);

    QString m_name;
    int m_scale;
    std::unique_ptr<Session> m_session;
};
