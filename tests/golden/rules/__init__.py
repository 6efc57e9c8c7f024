"""The rules of a run, written a second time and apart from the program.

One module for each stage, and below them the text (sjis), the case folder (case), the controls
(options) and the drive (disk). Nothing here shares code with the program, and nothing here is
fast: it is there to be read against the rules and to say what the program has to write.
"""
