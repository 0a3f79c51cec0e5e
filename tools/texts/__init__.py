"""The delivered texts: what asks for them, how they are read, and the rules they keep."""
