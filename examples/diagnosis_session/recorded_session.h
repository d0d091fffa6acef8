// What application and engine say to each other, into a file; and a session that is run from such a file, without engine,
// recording of the bus or item table.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_RECORDED_SESSION_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_RECORDED_SESSION_H_

#include <cstddef>
#include <cstdint>
#include <string>

#include "engine.h"
#if defined(KRM_HAVE_EXCHANGE)
#include "krm/exchange/player.h"
#include "krm/exchange/recording.h"
#endif

namespace diagnosis_session {

/// What the program knows before the first exchange, from elsewhere than the engine.
struct SessionStart {
    std::string file;              ///< name of the bus's recording
    bool isEmpty = false;          ///< that has nothing in it
    std::string units;             ///< that were chosen; empty for the engine's own
    std::size_t longestName = 0;   ///< of an item
    Microseconds first = kNoTime;  ///< time of the first frame, where it is known beforehand
};

/// What it knows after the last one.
struct SessionEnd {
    std::size_t faults = 0;    ///< in the input
    bool interrupted = false;  ///< by the user
    std::string breakOff;      ///< why the bus's recording couldn't be read to its end
};

#if defined(KRM_HAVE_EXCHANGE)

/// An engine that records what it is asked, and what another engine answers. Faults of the file don't hold up the session.
class RecordingEngine : public Engine {
public:
    /// Creates the file, or empties an older recording. Throws FileError where that can't be done. `engine` must live longer.
    RecordingEngine(Engine& engine, const std::string& path, const SessionStart& start);

    void Answer(CKRMBaseAdaptationData& request, CKRMBaseAdaptationData& answer) override;

    /// Records what was known at the end. Throws FileError where not all was recorded.
    void End(const SessionEnd& end);

private:
    Engine& m_engine;
    std::string m_path;
    krm::Recorder m_recorder;
};

/// An engine that answers from such a file, in the order in which it was asked then.
class ReplayingEngine : public Engine {
public:
    /// Throws FileError where the file is no recording of a session.
    explicit ReplayingEngine(const std::string& path);

    const SessionStart& Start() const { return m_start; }
    /// Throws FileError where the recording has no answer.
    void Answer(CKRMBaseAdaptationData& request, CKRMBaseAdaptationData& answer) override;
    /// Whether there are exchanges that haven't been played. The recording of an interrupted session ends before the session.
    bool HasMore() const { return m_played < m_recorded; }
    /// What was known at the end; an interruption, where the recording ends before.
    const SessionEnd& End() const { return m_end; }

private:
    std::string m_path;
    krm::Player m_player;
    SessionStart m_start;
    SessionEnd m_end;
    std::size_t m_recorded = 0;  ///< between start and end
    std::size_t m_played = 0;
};

#endif  // KRM_HAVE_EXCHANGE

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_RECORDED_SESSION_H_
