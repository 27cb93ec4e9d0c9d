#pragma once

#include "graph/script/Compiler.h"

namespace zg {

/// Counts how deep the compiler is; too deep is out of stack space, told before the machine's own stack is.
class NestingGuard {
 public:
    NestingGuard(int& depth, const Lexer& lexer) : depth_(depth) {
        if (++depth_ > deepestNesting) {
            --depth_;
            lexer.fail(ScriptErrorNumber::OutOfStackSpace);
        }
    }
    ~NestingGuard() { --depth_; }
    NestingGuard(const NestingGuard&) = delete;
    NestingGuard& operator=(const NestingGuard&) = delete;

 private:
    int& depth_;
};

}  // namespace zg
