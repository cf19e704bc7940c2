#pragma once

namespace pastorix {

// The whole program, from its start to its end. The two editions differ in one thing: whether the login form lets people into the main
// database.
int CorrerPrograma(int argc, char** argv, bool entradaPrincipal);

} // namespace pastorix
