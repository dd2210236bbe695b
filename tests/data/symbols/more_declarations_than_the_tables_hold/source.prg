process p0()
end
type T0
process p1()
end
type T1
process p2()
end
type T2
process p3()
end
type T3
process p4()
end
type T4
process p5()
end
type T5
process p6()
end
type T6
process p7()
end
type T7
process p8()
end
type T8
process p9()
end
type T9
process p10()
end
type T10
process p11()
end
type T11
process p12()
end
type T12
process p13()
end
type T13
process p14()
end
type T14
process p15()
end
type T15
process p16()
end
type T16
process p17()
end
type T17
process p18()
end
type T18
process p19()
end
type T19
process p20()
end
type T20
process p21()
end
type T21
process p22()
end
type T22
process p23()
end
type T23
process p24()
end
type T24
process p25()
end
type T25
process p26()
end
type T26
process p27()
end
type T27
process p28()
end
type T28
process p29()
end
type T29
process p30()
end
type T30
process p31()
end
type T31
process p32()
end
type T32
process p33()
end
type T33
process p34()
end
type T34
process p35()
end
type T35
process p36()
end
type T36
process p37()
end
type T37
process p38()
end
type T38
process p39()
end
type T39
process p40()
end
type T40
process p41()
end
type T41
process p42()
end
type T42
process p43()
end
type T43
process p44()
end
type T44
process p45()
end
type T45
process p46()
end
type T46
process p47()
end
type T47
process p48()
end
type T48
process p49()
end
type T49
process p50()
end
type T50
process p51()
end
type T51
process p52()
end
type T52
process p53()
end
type T53
process p54()
end
type T54
process p55()
end
type T55
process p56()
end
type T56
process p57()
end
type T57
process p58()
end
type T58
process p59()
end
type T59
process p60()
end
type T60
process p61()
end
type T61
process p62()
end
type T62
process p63()
end
type T63
process p64()
end
type T64
process p65()
end
type T65
process p66()
end
type T66
process p67()
end
type T67
process p68()
end
type T68
process p69()
end
type T69
process p70()
end
type T70
process p71()
end
type T71
process p72()
end
type T72
process p73()
end
type T73
process p74()
end
type T74
process p75()
end
type T75
process p76()
end
type T76
process p77()
end
type T77
process p78()
end
type T78
process p79()
end
type T79
process p80()
end
type T80
process p81()
end
type T81
process p82()
end
type T82
process p83()
end
type T83
process p84()
end
type T84
process p85()
end
type T85
process p86()
end
type T86
process p87()
end
type T87
process p88()
end
type T88
process p89()
end
type T89
process p90()
end
type T90
process p91()
end
type T91
process p92()
end
type T92
process p93()
end
type T93
process p94()
end
type T94
process p95()
end
type T95
process p96()
end
type T96
process p97()
end
type T97
process p98()
end
type T98
process p99()
end
type T99
process p100()
end
type T100
process p101()
end
type T101
process p102()
end
type T102
process p103()
end
type T103
process p104()
end
type T104
process p105()
end
type T105
process p106()
end
type T106
process p107()
end
type T107
process p108()
end
type T108
process p109()
end
type T109
process p110()
end
type T110
process p111()
end
type T111
process p112()
end
type T112
process p113()
end
type T113
process p114()
end
type T114
process p115()
end
type T115
process p116()
end
type T116
process p117()
end
type T117
process p118()
end
type T118
process p119()
end
type T119
process p120()
end
type T120
process p121()
end
type T121
process p122()
end
type T122
process p123()
end
type T123
process p124()
end
type T124
process p125()
end
type T125
process p126()
end
type T126
process p127()
end
type T127
process p128()
end
type T128
process p129()
end
type T129
process p130()
end
type T130
process p131()
end
type T131
process p132()
end
type T132
process p133()
end
type T133
process p134()
end
type T134
process p135()
end
type T135
process p136()
end
type T136
process p137()
end
type T137
process p138()
end
type T138
process p139()
end
type T139
process p140()
end
type T140
process p141()
end
type T141
process p142()
end
type T142
process p143()
end
type T143
process p144()
end
type T144
process p145()
end
type T145
process p146()
end
type T146
process p147()
end
type T147
process p148()
end
type T148
process p149()
end
type T149
process p150()
end
type T150
process p151()
end
type T151
process p152()
end
type T152
process p153()
end
type T153
process p154()
end
type T154
process p155()
end
type T155
process p156()
end
type T156
process p157()
end
type T157
process p158()
end
type T158
process p159()
end
type T159
process p160()
end
type T160
process p161()
end
type T161
process p162()
end
type T162
process p163()
end
type T163
process p164()
end
type T164
process p165()
end
type T165
process p166()
end
type T166
process p167()
end
type T167
process p168()
end
type T168
process p169()
end
type T169
process p170()
end
type T170
process p171()
end
type T171
process p172()
end
type T172
process p173()
end
type T173
process p174()
end
type T174
process p175()
end
type T175
process p176()
end
type T176
process p177()
end
type T177
process p178()
end
type T178
process p179()
end
type T179
process p180()
end
type T180
process p181()
end
type T181
process p182()
end
type T182
process p183()
end
type T183
process p184()
end
type T184
process p185()
end
type T185
process p186()
end
type T186
process p187()
end
type T187
process p188()
end
type T188
process p189()
end
type T189
process p190()
end
type T190
process p191()
end
type T191
process p192()
end
type T192
process p193()
end
type T193
process p194()
end
type T194
process p195()
end
type T195
process p196()
end
type T196
process p197()
end
type T197
process p198()
end
type T198
process p199()
end
type T199
process p200()
end
type T200
process p201()
end
type T201
process p202()
end
type T202
process p203()
end
type T203
process p204()
end
type T204
process p205()
end
type T205
process p206()
end
type T206
process p207()
end
type T207
process p208()
end
type T208
process p209()
end
type T209
process p210()
end
type T210
process p211()
end
type T211
process p212()
end
type T212
process p213()
end
type T213
process p214()
end
type T214
process p215()
end
type T215
process p216()
end
type T216
process p217()
end
type T217
process p218()
end
type T218
process p219()
end
type T219
process p220()
end
type T220
process p221()
end
type T221
process p222()
end
type T222
process p223()
end
type T223
process p224()
end
type T224
process p225()
end
type T225
process p226()
end
type T226
process p227()
end
type T227
process p228()
end
type T228
process p229()
end
type T229
process p230()
end
type T230
process p231()
end
type T231
process p232()
end
type T232
process p233()
end
type T233
process p234()
end
type T234
process p235()
end
type T235
process p236()
end
type T236
process p237()
end
type T237
process p238()
end
type T238
process p239()
end
type T239
process p240()
end
type T240
process p241()
end
type T241
process p242()
end
type T242
process p243()
end
type T243
process p244()
end
type T244
process p245()
end
type T245
process p246()
end
type T246
process p247()
end
type T247
process p248()
end
type T248
process p249()
end
type T249
process p250()
end
type T250
process p251()
end
type T251
process p252()
end
type T252
process p253()
end
type T253
process p254()
end
type T254
process p255()
end
type T255
process p256()
end
type T256
process p257()
end
type T257
process p258()
end
type T258
process p259()
end
type T259
process p260()
end
type T260
process p261()
end
type T261
process p262()
end
type T262
process p263()
end
type T263
process p264()
end
type T264
process p265()
end
type T265
process p266()
end
type T266
process p267()
end
type T267
process p268()
end
type T268
process p269()
end
type T269
process p270()
end
type T270
process p271()
end
type T271
process p272()
end
type T272
process p273()
end
type T273
process p274()
end
type T274
process p275()
end
type T275
process p276()
end
type T276
process p277()
end
type T277
process p278()
end
type T278
process p279()
end
type T279
process p280()
end
type T280
process p281()
end
type T281
process p282()
end
type T282
process p283()
end
type T283
process p284()
end
type T284
process p285()
end
type T285
process p286()
end
type T286
process p287()
end
type T287
process p288()
end
type T288
process p289()
end
type T289
process p290()
end
type T290
process p291()
end
type T291
process p292()
end
type T292
process p293()
end
type T293
process p294()
end
type T294
process p295()
end
type T295
process p296()
end
type T296
process p297()
end
type T297
process p298()
end
type T298
process p299()
end
type T299