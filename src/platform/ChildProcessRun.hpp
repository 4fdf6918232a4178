#pragma once

namespace quorvane {

// A program started with ChildProcesses::start that its owner still waits for. Destroying it
// before the program ends terminates the program (an administrator's password window started
// that way goes away) and guarantees the completion never runs, so the completion may capture
// the object that owns the run.
class ChildProcessRun {
public:
    virtual ~ChildProcessRun() = default;
};

}  // namespace quorvane
