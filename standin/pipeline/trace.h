// What the stages tell about one frame, as a tree: a node for the frame and one for each copy of
// it, each with its steps in order and, where it ends, its reason.
#pragma once
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "standin/pipeline/bytes.h"
#include "standin/pipeline/reasons.h"

namespace standin {

struct TraceStep {
    std::string_view stage;
    std::string object;  // what decided: "rule 12"; may be empty
    std::string text;    // what was read, and what changed
};

struct TraceNode {
    std::string title;
    int parent = -1;
    std::vector<TraceStep> steps;
    std::vector<int> children;
    bool ended = false;
    Reason reason{};
    std::string object;  // what decided the end
    int port = -1;       // of a copy that is sent
    Bytes frame;         // and its bytes
};

class Trace {
  public:
    explicit Trace(std::string title) {
        nodes_.push_back({std::move(title), -1, {}, {}, false, {}, {}, -1, {}});
    }

    void step(std::string_view stage, std::string text, std::string object = {}) {
        nodes_[at_].steps.push_back({stage, std::move(object), std::move(text)});
    }

    // A copy begins, and is left again: what follows belongs to what it is a copy of.
    void enter(std::string title);
    void leave() { at_ = static_cast<std::size_t>(nodes_[at_].parent); }

    void end(Reason reason, std::string object = {});
    void sent(int port, View frame);

    const std::deque<TraceNode> &nodes() const { return nodes_; }

    // A line for each node and step, two spaces deeper for each level.
    std::string text() const;
    // One object, with its children in it.
    std::string json() const;

  private:
    std::deque<TraceNode> nodes_;
    std::size_t at_ = 0;
};

}  // namespace standin
