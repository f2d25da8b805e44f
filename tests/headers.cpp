// The headers that tests share are compiled with this source; it has nothing of its own.
