Macon,GA,83W38,32N50,5
Zürich,Switzerland,008E33,47N22,-1
Macon,IL,88W59,39N43,6
