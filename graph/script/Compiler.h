#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "graph/script/Code.h"
#include "graph/script/Globals.h"
#include "graph/script/Syntax.h"

namespace zg::script {

/// A compiled text of statements. `install` declares its names before `main` runs.
struct CompiledCode {
    struct Variable {
        std::uint32_t global = 0;
        bool isConstant = false;
        Value value;  ///< of a constant
    };
    struct NamedProcedure {
        std::uint32_t global = 0;
        std::shared_ptr<Procedure> procedure;
    };

    CodeBlock main;
    std::vector<Variable> variables;
    std::vector<NamedProcedure> procedures;
};

/// Compiles statements. New names only get a number in `globals`. Raises a ScriptError.
CompiledCode compileCode(std::string_view text, Globals& globals);

/// Compiles the result of parseExpression to code that leaves one value on the stack.
CodeBlock compileExpression(std::string_view text, Syntax&& syntax, Globals& globals);

/// Declares the names: variables as empty, constants, procedures.
void install(const CompiledCode& code, Globals& globals);

/// Whether a lower-case name means the language's function rather than a name of the script.
bool isHostFunctionName(const std::string& name, Globals& globals);

}  // namespace zg::script
