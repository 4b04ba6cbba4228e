// The tree of a trace and its text.
#include "standin/pipeline/trace.h"

namespace standin {
namespace {

void append(std::string &text, const std::deque<TraceNode> &nodes, std::size_t at, int depth) {
    const TraceNode &node = nodes[at];
    const std::string indent(static_cast<std::size_t>(2 * depth), ' ');
    text += indent + node.title + '\n';
    for (const TraceStep &step : node.steps) {
        text += indent + "  " + std::string(step.stage) + ": ";
        if (!step.object.empty()) text += step.object + ": ";
        text += step.text + '\n';
    }
    for (const int child : node.children)
        append(text, nodes, static_cast<std::size_t>(child), depth + 1);
    if (!node.ended) return;
    const ReasonRow &row = row_of(node.reason);
    text += indent + "  = " + word_of(row.outcome);
    if (node.port >= 0) text += " on port " + std::to_string(node.port);
    if (!node.object.empty()) text += " by " + node.object;
    if (row.outcome == Outcome::kDropped)
        text += std::string(": ") + row.sentence + " (" + row.name + ")";
    text += '\n';
}

std::string quoted(std::string_view text) {
    std::string made = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') made += '\\';
        made += c;
    }
    return made + '"';
}

std::string hex_of(const Bytes &bytes) {
    constexpr char kDigits[] = "0123456789abcdef";
    std::string text;
    for (const std::uint8_t byte : bytes) {
        text += kDigits[byte >> 4];
        text += kDigits[byte & 15];
    }
    return text;
}

void append_json(std::string &text, const std::deque<TraceNode> &nodes, std::size_t at) {
    const TraceNode &node = nodes[at];
    text += "{\"title\": " + quoted(node.title) + ", \"steps\": [";
    for (const TraceStep &step : node.steps) {
        if (&step != &node.steps.front()) text += ", ";
        text += "{\"stage\": " + quoted(step.stage) + ", \"object\": " + quoted(step.object) +
                ", \"text\": " + quoted(step.text) + "}";
    }
    text += "], \"children\": [";
    for (const int child : node.children) {
        if (child != node.children.front()) text += ", ";
        append_json(text, nodes, static_cast<std::size_t>(child));
    }
    text += "]";
    if (node.ended) {
        const ReasonRow &row = row_of(node.reason);
        text += ", \"outcome\": " + quoted(word_of(row.outcome)) +
                ", \"reason\": " + quoted(row.name) + ", \"object\": " + quoted(node.object);
        if (node.port >= 0)
            text += ", \"port\": " + std::to_string(node.port) +
                    ", \"frame\": " + quoted(hex_of(node.frame));
    }
    text += "}";
}

}  // namespace

void Trace::enter(std::string title) {
    const int made = static_cast<int>(nodes_.size());
    nodes_[at_].children.push_back(made);
    TraceNode node;
    node.title = std::move(title);
    node.parent = static_cast<int>(at_);
    nodes_.push_back(std::move(node));
    at_ = static_cast<std::size_t>(made);
}

void Trace::end(Reason reason, std::string object) {
    TraceNode &node = nodes_[at_];
    node.ended = true;
    node.reason = reason;
    node.object = std::move(object);
}

void Trace::sent(int port, View frame) {
    end(Reason::kSent);
    nodes_[at_].port = port;
    nodes_[at_].frame.assign(frame.begin(), frame.end());
}

std::string Trace::text() const {
    std::string text;
    append(text, nodes_, 0, 0);
    return text;
}

std::string Trace::json() const {
    std::string text;
    append_json(text, nodes_, 0);
    return text;
}

}  // namespace standin
