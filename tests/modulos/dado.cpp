// A file that holds data under the name of a module's function.
extern "C" [[gnu::visibility("default")]] const char InformacoesDoPacote[];
const char InformacoesDoPacote[] = "nada";
