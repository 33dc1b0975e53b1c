// The controls: bytes choose up to three of them and then what is done to them.
#include "fuzz/ControlOperations.h"
#include "fuzz/FuzzApplication.h"

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    FuzzApplication::start();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const quint8 *data, std::size_t size)
{
    FuzzBytes bytes(data, size);
    Stage stage(bytes);
    stage.play();
    return 0;
}
