"""What becomes of all sources of the JDK: how many end in which message, read twice and next to the plain reading."""

import os
import sys

import jdk_sources
import rounds


def main():
    programs, work = rounds.folders()
    everything = jdk_sources.listed(work, "jdk.txt", jdk_sources.unpacked(work))
    report = os.path.join(programs, "report")
    first = rounds.output_of(report, everything)
    again = rounds.output_of(report, everything)
    print(rounds.output_of(report, everything, "compare"), end="")
    print("read again: the same" if first == again else "READ AGAIN: NOT THE SAME")
    sys.exit(first != again)


main()
