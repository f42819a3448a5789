// A file that answers like a module and says nothing.
extern "C" [[gnu::visibility("default")]] const void* InformacoesDoPacote() { return nullptr; }
