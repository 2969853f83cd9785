// Prints the figures of the portable rooms, one a line: name value unit baseline ratio.
#include "bench/native/Figure.h"

int main()
{
    FormConvertBench();
}
