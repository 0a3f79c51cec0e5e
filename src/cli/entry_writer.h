#pragma once
// What the commands share that write something for each birth.

#include <iosfwd>
#include <string>

#include "app/birth_arguments.h"
#include "app/exit_status.h"
#include "platform/file_replacing.h"
#include "platform/terminal.h"

namespace tolvanis {

// Tells what is refused, and remembers whether anything was or the output took no more.
class EntryWriter : public BirthReceiver {
  public:
    EntryWriter(const Sink& output, std::ostream& errors) : output_(output), errors_(errors) {}

    void Refuse(const std::string& source, const std::string& fault) override {
        TellOn(errors_, source + ": " + fault);
        status_ = kSomethingRefused;
    }
    bool WantsMore() const override { return canWrite_; }
    ExitStatus status() const { return status_; }

  protected:
    void Write(const std::string& text) {
        canWrite_ = canWrite_ && output_(text);
        if (!canWrite_) status_ = kSomethingRefused;
    }
    void Tell(const std::string& note) { TellOn(errors_, note); }
    void NoteDifference() { status_ = kSomethingRefused; }

  private:
    const Sink& output_;
    std::ostream& errors_;
    bool canWrite_ = true;
    ExitStatus status_ = kAllComputed;
};

}  // namespace tolvanis
